// SPDX-License-Identifier: MIT
#pragma once

#include <QMetaType>
#include <QString>
#include <QVariant>
#include <QVector>

#include <optional>

class QSettings;

// The one table of what the program keeps in its settings file: name, type, default and meaning of every key. Whoever
// reads a key takes them from here; SettingsChange writes.
enum class SettingsKey {
    // Held by Settings, in the order of its properties.
    LyricsFontSize,
    Language,
    ProxyType,
    ProxyAddress,
    ProxyPort,
    ProxyAuthentication,
    ProxyUsername,
    ProxyPassword,
    SaveFilesList,
    SearchProvider,
    GenerateLyricsFileAuto,
    PrependNewLine,
    ProvidersOrder,
    // Read and written where they are used.
    Geometry,
    ListWidth,
    FilesList,
    LastFileDir,
    LastFolderDir,
    OpenGlMethod,
    FirstStart,
    OpenQuillmarshSite,
    UsageStatistics,
    TrackerClientId,
    UpdaterPeriod,
    UpdaterSkippedVersion,
};

// The name as it stands in the settings file, with its group: "proxy/type".
[[nodiscard]] QString keyName(SettingsKey key);

// What counts when the key is absent. Invalid where absence means something of its own.
[[nodiscard]] QVariant keyDefault(SettingsKey key);

// What is stored, or the default. A stored value comes as the store has it, often as a text: convert it.
[[nodiscard]] QVariant storedValue(const QSettings &store, SettingsKey key);

// A stored flag: on for "true" and 1, in any case; off for any other value. The conversion of QVariant turns every text
// on but "false" and "0".
[[nodiscard]] bool flagOf(const QVariant &stored);

// A stored whole number within the bounds, which are included; nothing for any other value. The conversion of QVariant
// wraps numbers that are too large.
[[nodiscard]] std::optional<int> numberOf(const QVariant &stored, int smallest, int largest);

// Width of the list of files in pixels; nothing when none is stored, or none that a window can have.
[[nodiscard]] std::optional<int> storedListWidth(const QSettings &store);

struct SettingsKeyRow
{
    QString name;
    QMetaType::Type type;
    QVariant defaultValue;
    QString meaning; // in English, for documents
};

// The whole table, with the base addresses of the group "endpoints" at the end.
[[nodiscard]] QVector<SettingsKeyRow> settingsKeyTable();
