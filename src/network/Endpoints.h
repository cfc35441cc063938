// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QUrl>
#include <QVector>

// The one table of addresses that the program talks to. Each has a default and can be overridden in the settings group
// "endpoints" under its key; an override is a plain http or https address, anything else is ignored with a warning.
//
// The overrides are read from the settings file (SettingsStore) on the first use of endpointBase(), endpointUrl() or
// endpointExists(), so the application's and the organisation's name must be set before. Main thread only.
enum class Endpoint {
    LyricsFreak,
    Megalyrics,
    AZLyrics,
    AZLyricsSearch,
    Genius,
    DarkLyrics,
    MusixMatch,
    Lastfm,
    Maker,
    Collector,
    ProxyTest,
    Google,
    Bing,
    Yahoo,
    Yandex,
};

// All of them, in their order.
[[nodiscard]] QVector<Endpoint> allEndpoints();

// The settings group of the overrides: "endpoints".
[[nodiscard]] QString endpointGroup();

// The key of the override, without its group: "LyricsFreak".
[[nodiscard]] QString endpointKey(Endpoint endpoint);

// The base address without an override.
[[nodiscard]] QUrl endpointDefault(Endpoint endpoint);

// The base address, without a trailing slash. An override may have a path of its own.
[[nodiscard]] QUrl endpointBase(Endpoint endpoint);

// The base address followed by `target`, an encoded path with an optional query and fragment. A missing "/" between the
// two is put in, so that no target can reach into the host name.
[[nodiscard]] QUrl endpointUrl(Endpoint endpoint, const QString &target);

// False when the address is in the reserved domain .example (RFC 2606), which stands for "there is none": nothing may
// be asked of it.
[[nodiscard]] bool endpointExists(Endpoint endpoint);

// Drops what was read of the settings; the next use reads them anew.
void reloadEndpoints();
