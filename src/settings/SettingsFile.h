// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

// Keeps a damaged settings file from doing harm: the damage is found, kept aside and taken out before anything is read.
//
// The format is the one in which QSettings writes on this platform: "[group]" and "key=value" lines, one entry a line.
// QSettings reads damaged files as well, but often silently and wrongly: an open quote swallows the rest of the file, a
// NUL passes as text, a broken group line gives its entries to another group.

// No larger file is read, and none is written. A list of all 65,535 songs takes it with paths of four thousand bytes.
constexpr qint64 largestSettingsFileBytes = 256LL * 1024 * 1024;

struct SettingsFileCheck
{
    bool damaged = false; // something was lost
    bool clean = true;    // what is readable is all there is, to the byte
    QByteArray readable;  // the lines that are whole
    int entries = 0;      // how many "key=value" lines are in that
};

// Damage is: a line that is neither a group, an entry, a blank nor a comment; control characters; a quote or an escape
// that does not end; entries under a broken group line; and values of types that the program never stores, as Qt builds
// some of them ("@Variant") without bounds: a few bytes are enough to end the program. A byte order mark, a comment
// after "#" and a last line without its end are no damage, but the store cannot do with them: they are not clean. Only
// a base address, and what says where a proxy is, counts as lost without its line end, since it may be a piece of
// another one. An empty file has lost everything, and one that was marked as whole and has no end any more its end.
[[nodiscard]] SettingsFileCheck checkSettingsFile(const QByteArray &content);

// With two comments around it, by which it is seen later when the end was lost. For what the store has written.
[[nodiscard]] QByteArray markedAsWhole(const QByteArray &content);

enum class SettingsFileAccess {
    Mend, // for the only instance of the program
    Look  // changes nothing on the disk
};

struct SettingsMending
{
    bool damaged = false;    // something in the file was lost
    bool unreadable = false; // there is something in the file's place, but no file, or none that may be read
    QString copy;            // path of the damaged file as it was; empty when no copy was made
    // What is to be read in this run instead of the file, which must not be read; nothing is to be stored then, as it
    // would take the file's place. Without a value, the file is good.
    std::optional<QByteArray> standIn;
};

// Copies a damaged file to "<path>.bad", or to "<path>.bad.2" and so on when that is taken by another content, and then
// leaves only what can be read in the file. Without a copy the file stays as it is. A file that is larger than any
// settings can be is moved aside unread; what is no regular file is never opened. Before anything is read or written.
[[nodiscard]] SettingsMending mendSettingsFile(const QString &path, SettingsFileAccess access);

// Removes the copies of damaged files, for a user who wants nothing of all that to be left.
void removeDamagedCopies(const QString &path);
