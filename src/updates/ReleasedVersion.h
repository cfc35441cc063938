// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDate>
#include <QString>
#include <QVector>

// One version in the maker's update information, as the maker's site said: hostile until the setup file's signature is
// checked.
struct ReleasedVersion
{
    QString version;      // digits and dots only, 1 to 32 of them
    QString url;          // of the setup file, as it stands there; may be anything
    QString changes;      // the release notes, one change a line; may be empty, may hold markup
    QDate date;           // of the release; null when it is missing or not a date
    QByteArray signature; // of the setup file (UpdateSignature.h), in base64 as it stands there; may be empty
};

using ReleasedVersions = QVector<ReleasedVersion>;
