// SPDX-License-Identifier: MIT
#pragma once

#include "updates/ReleasedVersion.h"

#include <QString>

// The versions that are newer than this one, newest first.
[[nodiscard]] ReleasedVersions versionsNewerThan(const QString &version, const ReleasedVersions &versions);

// The date of this version in the list; null when it is not known.
[[nodiscard]] QDate releaseDate(const QString &version, const ReleasedVersions &versions);

// The version's number, cut where it is longer than any that a person would read.
[[nodiscard]] QString shownVersion(const QString &version);

// What has changed in these versions, in their order, as HTML for a QTextBrowser: for each its number, its date and a
// list of its changes. Whatever came from the maker's site is text in it, never markup. At most a thousand changes are
// shown, each cut at a thousand characters and all at 65536, so that hostile notes cannot hold up the window.
[[nodiscard]] QString releaseNotes(const ReleasedVersions &versions);
