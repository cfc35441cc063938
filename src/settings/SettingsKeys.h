// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1String>

// The names of the persistent keys, as they stand in the settings file.
namespace SettingsKeys {

// Held by Settings; its class comment gives types and defaults.
inline constexpr QLatin1String lyricsFontSize("lyricsFontSize");
inline constexpr QLatin1String language("language");
inline constexpr QLatin1String saveFilesList("saveFilesList");
inline constexpr QLatin1String searchProvider("searchProvider");
inline constexpr QLatin1String generateLyricsFileAuto("generateLyricsFileAuto");
inline constexpr QLatin1String prependNewLine("prependNewLine");
inline constexpr QLatin1String providersOrder("providersOrder");

// List of strings: the urls of the listed files in row order; written when `saveFilesList` is on. Absolute paths are
// read too.
inline constexpr QLatin1String filesList("filesList");
// int: how the scene is drawn. 0 automatic, 1 OpenGL ES, 2 software (also when absent), 3 desktop OpenGL.
inline constexpr QLatin1String openGlMethod("openGlMethod");
// String: the version that ran last; empty before the first run.
inline constexpr QLatin1String firstStart("FirstStart");
// bool, default true: whether the maker's welcome and what's-new pages may be opened.
inline constexpr QLatin1String openQuillmarshSite("openQuillmarshSite");

} // namespace SettingsKeys
