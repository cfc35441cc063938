// SPDX-License-Identifier: MIT
#include "settings/SettingsFile.h"

#include "settings/SettingsCopy.h"
#include "settings/SettingsLog.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cctype>

#include <unistd.h>

namespace {

constexpr int mostCopies = 99;

// Comments, which the store skips. Files of earlier versions have neither, and those that others wrote.
const QByteArray firstLine("; A whole file ends with a line that says so.\n");
const QByteArray lastLine("; This is the end.\n");

enum class LineKind { Skipped, Dropped, Group, Entry, Damaged };

bool isKeyCharacter(char c)
{
    static const QByteArray others("_-.%\\/ ");
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || others.contains(c);
}

// Of a group or an entry, as QSettings escapes them.
bool isKey(const QByteArray &name)
{
    return !name.isEmpty() && std::all_of(name.begin(), name.end(), isKeyCharacter);
}

bool hasControlCharacter(const QByteArray &line)
{
    return std::any_of(line.begin(), line.end(), [](char c) { return (c >= 0 && c < ' ' && c != '\t') || c == 0x7f; });
}

bool isGroup(const QByteArray &line)
{
    const int end = line.indexOf(']');
    const QByteArray rest = line.mid(end + 1).trimmed();
    return end > 0 && isKey(line.mid(1, end - 1)) && (rest.isEmpty() || rest.startsWith(';'));
}

QByteArray groupName(const QByteArray &line)
{
    const QByteArray text = line.trimmed();
    return text.mid(1, text.indexOf(']') - 1);
}

// The digits from `position` on, as the number that QSettings takes for a character: without an end, in 16 bits.
quint16 escapedNumber(const QByteArray &value, int position, int base)
{
    uint number = 0;
    for (; position < value.size(); ++position) {
        bool isDigit = false;
        const uint digit = value.mid(position, 1).toUInt(&isDigit, base);
        if (!isDigit)
            break;
        number = number * static_cast<uint>(base) + digit;
    }
    return static_cast<quint16>(number);
}

// Whether an item that begins with this escape is a plain text. One that means "@", or that means nothing and is left
// out, could hide a type.
bool isPlainEscape(const QByteArray &value, int position)
{
    static const QByteArray letters("\\\"nrtabfv");
    const char c = value.at(position);
    if (c == 'x')
        return escapedNumber(value, position + 1, 16) != '@' && position + 1 < value.size() &&
               std::isxdigit(static_cast<uchar>(value.at(position + 1)));
    if (c >= '0' && c <= '7')
        return escapedNumber(value, position, 8) != '@';
    return letters.contains(c);
}

// An item that begins with "@" has a type, or is a text with another "@" in front.
bool isStoredType(const QByteArray &value, int position)
{
    const auto has = [&value, position](const char *type) {
        return qstrncmp(value.constData() + position, type, qstrlen(type)) == 0;
    };
    return has("@@") || has("@ByteArray(") || has("@String(") || has("@Invalid()");
}

// A letter that means nothing but itself in a value: nearly all of the kept list are such ones.
bool isPlain(char c)
{
    return c > '@' ? c != '\\' : c >= '-' && c < ';';
}

// Whether quotes and escapes end, and each item of the list that a value may be is of a type that is stored.
bool isValue(const QByteArray &value)
{
    bool inQuotes = false;
    bool atItemStart = true;
    const char *const letters = value.constData(); // which end with a null
    for (int i = 0; i < value.size(); ++i) {
        if (isPlain(letters[i])) {
            atItemStart = false;
            while (isPlain(letters[i + 1]))
                ++i;
            continue;
        }
        const char c = letters[i];
        if (c == ';' && !inQuotes)
            return true; // a comment
        if (c == '@' && atItemStart && !isStoredType(value, i))
            return false;
        if (c == '\\' && (++i == value.size() || (atItemStart && !isPlainEscape(value, i))))
            return false;
        if (c == '"')
            inQuotes = !inQuotes;
        const bool isSkipped = c == '"' || (!inQuotes && (c == ' ' || c == '\t'));
        atItemStart = (c == ',' && !inQuotes) || (atItemStart && isSkipped);
    }
    return !inQuotes;
}

bool isEntry(const QByteArray &line)
{
    const int equals = line.indexOf('=');
    return equals > 0 && isKey(line.left(equals).trimmed()) && isValue(line.mid(equals + 1));
}

// An entry that may have lost its end and would still be believed: requests, and the log-in for a proxy, would go to
// another machine. What is cut elsewhere is a word without a meaning, a number in bounds or a file that is not there.
bool isRiskyWhenCut(const QByteArray &group, const QByteArray &line)
{
    const QByteArray key = line.left(line.indexOf('=')).trimmed();
    static const QByteArrayList ofProxy{"type", "address", "port", "authentication"};
    return group == "endpoints" || (group == "proxy" && ofProxy.contains(key));
}

LineKind kindOf(const QByteArray &rawLine)
{
    const QByteArray line = rawLine.trimmed();
    if (hasControlCharacter(line))
        return LineKind::Damaged;
    if (line.isEmpty() || line.startsWith(';'))
        return LineKind::Skipped;
    if (line.startsWith('#')) // a comment in other formats; the store would take it for an entry
        return LineKind::Dropped;
    if (line.startsWith('['))
        return isGroup(line) ? LineKind::Group : LineKind::Damaged;
    return isEntry(line) ? LineKind::Entry : LineKind::Damaged;
}

// Writes the whole content into a file that did not exist, readable for the same people as the other one.
bool writeNewFile(const QString &path, const QByteArray &content, const QString &other)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return false;
    const bool written = giveSameOwner(&file, other) && file.write(content) == content.size() && file.flush() &&
                         fsync(file.handle()) == 0;
    if (!written)
        file.remove();
    return written;
}

bool holds(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.size() == content.size() && file.open(QIODevice::ReadOnly) && wholeContent(&file) == content;
}

QString copyName(const QString &path, int number)
{
    const QString name = path + QLatin1String(".bad");
    return number == 1 ? name : name + QLatin1Char('.') + QString::number(number);
}

// Path of the copy, an earlier one of the same content included; empty when there can be none.
QString keepCopy(const QString &path, const QByteArray &content)
{
    for (int number = 1; number <= mostCopies; ++number) {
        const QString copy = copyName(path, number);
        if (writeNewFile(copy, content, path) || holds(copy, content))
            return copy;
    }
    return {};
}

QString moveAside(const QString &path)
{
    for (int number = 1; number <= mostCopies; ++number) {
        const QString name = copyName(path, number);
        if (QFile::rename(path, name)) // never over another file
            return name;
    }
    return {};
}

bool replaceContent(const QString &path, const QByteArray &content)
{
    SettingsCopy copy(path);
    return copy.write(content) && copy.takePlace();
}

SettingsMending withoutFile()
{
    qCWarning(settingsLog, "The settings file cannot be read.");
    SettingsMending mending;
    mending.unreadable = true;
    mending.standIn = QByteArray();
    return mending;
}

void mendContent(SettingsMending *mending, const QString &path, const QByteArray &content, SettingsFileAccess access)
{
    const SettingsFileCheck check = checkSettingsFile(content);
    mending->damaged = check.damaged;
    if (check.clean)
        return;
    const bool mayMend = access == SettingsFileAccess::Mend;
    if (check.damaged && mayMend)
        mending->copy = keepCopy(path, content);
    // Where entries are lost, the file is the only place that has them until there is a copy.
    const bool mayReplace = mayMend && (!check.damaged || !mending->copy.isEmpty());
    if (mayReplace && replaceContent(path, check.readable))
        return;
    qCWarning(settingsLog, "The settings file is damaged and cannot be mended.");
    mending->standIn = check.readable;
}

} // namespace

QByteArray markedAsWhole(const QByteArray &content)
{
    return firstLine + content + lastLine;
}

SettingsFileCheck checkSettingsFile(const QByteArray &content)
{
    static const QByteArray byteOrderMark("\xef\xbb\xbf");
    SettingsFileCheck check;
    const bool hasLostItsEnd = content.startsWith(firstLine) && !content.contains('\n' + lastLine.trimmed());
    check.damaged = hasLostItsEnd || content.isEmpty();
    bool isGroupReadable = true;
    QByteArray group;
    int start = content.startsWith(byteOrderMark) ? byteOrderMark.size() : 0;
    if (hasLostItsEnd)
        start = firstLine.size(); // what is left makes no such promise
    while (start < content.size()) {
        const int lineFeed = content.indexOf('\n', start);
        const int end = lineFeed < 0 ? content.size() : lineFeed;
        const QByteArray line = content.mid(start, end - start);
        start = end + 1;
        LineKind kind = kindOf(line);
        if (kind == LineKind::Entry && lineFeed < 0 && isRiskyWhenCut(group, line))
            kind = LineKind::Damaged;
        if (kind == LineKind::Group) {
            isGroupReadable = true;
            group = groupName(line);
        } else if (kind == LineKind::Damaged && line.trimmed().startsWith('['))
            isGroupReadable = false;
        if (kind == LineKind::Damaged || (kind == LineKind::Entry && !isGroupReadable))
            check.damaged = true;
        else if (kind != LineKind::Dropped)
            check.readable += line + '\n';
        if (kind == LineKind::Entry && isGroupReadable)
            ++check.entries;
    }
    check.clean = check.readable == content;
    return check;
}

SettingsMending mendSettingsFile(const QString &path, SettingsFileAccess access)
{
    const QFileInfo info(path);
    if (!info.exists())
        return {};
    QFile file(path);
    // Only a regular file is opened: a FIFO would never answer.
    if (!info.isFile() || !file.open(QIODevice::ReadOnly))
        return withoutFile();
    SettingsMending mending;
    if (file.size() > largestSettingsFileBytes) {
        qCWarning(settingsLog, "The settings file is too large to be one.");
        mending.damaged = true;
        mending.copy = access == SettingsFileAccess::Mend ? moveAside(path) : QString();
        if (mending.copy.isEmpty())
            mending.standIn = QByteArray();
    } else if (const auto content = wholeContent(&file)) {
        mendContent(&mending, path, *content, access);
    } else {
        return withoutFile();
    }
    return mending;
}

void removeDamagedCopies(const QString &path)
{
    for (int number = 1; number <= mostCopies; ++number)
        QFile::remove(copyName(path, number));
}
