// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

// Keeps a damaged settings file from doing harm: the damage is found, kept aside and taken out before anything is read.
//
// The format is the one in which QSettings writes on this platform: "[group]" and "key=value" lines, one entry a line.
// QSettings reads damaged files as well, but often silently and wrongly: an open quote swallows the rest of the file, a
// NUL passes as text, a broken group line gives its entries to another group.

struct SettingsFileCheck
{
    bool damaged = false;
    QByteArray readable; // the lines that are whole; all of them when nothing is damaged
    int entries = 0;     // how many "key=value" lines are in that
};

// Damage is: a line that is neither a group, an entry, a blank nor a comment after ";"; control characters; a quote or
// an escape that does not end; entries under a broken group line; a last line without its end, which is kept when it is
// whole; a byte order mark; and values of types that the program never stores, as Qt builds some of
// them ("@Variant") without bounds: a few bytes are enough to end the program. No content at all is not damage.
[[nodiscard]] SettingsFileCheck checkSettingsFile(const QByteArray &content);

struct SettingsMending
{
    bool damaged = false;
    QString copy; // path of the damaged file as it was; empty when no copy could be made
};

// Copies a damaged file to "<path>.bad", or to "<path>.bad.2" and so on when that is taken by another content, and then
// leaves only what can be read in the file. Without a copy the file stays as it is. A file that is larger than any
// settings can be is moved aside unread. For the only instance of the program, before anything is read or written.
SettingsMending mendSettingsFile(const QString &path);
