// SPDX-License-Identifier: MIT
#include "updates/ReleaseNotes.h"

#include "updates/VersionOrder.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>

namespace {

constexpr int longestVersion = 32;
constexpr int longestLine = 1000;
constexpr int mostLines = 1000; // those with the versions' numbers among them
constexpr int mostCharacters = 65536;

// How much of the notes may still be shown.
struct Room
{
    int lines = mostLines;
    int characters = mostCharacters;

    [[nodiscard]] bool isLeft() const { return lines > 0 && characters > 0; }
    void take(const QString &text)
    {
        --lines;
        characters -= text.size();
    }
};

QString cut(const QString &text, int length)
{
    return text.size() > length ? text.left(length) + QChar(0x2026) : text;
}

QString changeItem(const QString &change)
{
    const QString text = change.toHtmlEscaped();
    return text.contains(QLatin1String("CRITICAL")) ? QStringLiteral("<li><b>%1</b></li>").arg(text)
                                                    : QStringLiteral("<li>%1</li>").arg(text);
}

QString heading(const ReleasedVersion &version)
{
    QString html =
        QLatin1String("<b>") +
        QCoreApplication::translate("UpdateDialog", "Version %1").arg(shownVersion(version.version)).toHtmlEscaped() +
        QLatin1String("</b><br/>");
    if (version.date.isValid())
        html += QLatin1String("<i>") + version.date.toString(Qt::TextDate).toHtmlEscaped() + QLatin1String("</i><br/>");
    return html;
}

// Blank lines, which stand around the list in the file, are no changes.
QString changeList(const QString &changes, Room *room)
{
    QString html = QStringLiteral("<ul>");
    for (const QString &line : changes.split(QLatin1Char('\n'))) {
        QString change = line.trimmed();
        if (change.startsWith(QLatin1Char('-')))
            change = change.mid(1).trimmed();
        if (change.isEmpty() || !room->isLeft())
            continue;
        change = cut(change, std::min(longestLine, room->characters));
        room->take(change);
        html += changeItem(change);
    }
    return html + QLatin1String("</ul><br/>");
}

} // namespace

ReleasedVersions versionsNewerThan(const QString &version, const ReleasedVersions &versions)
{
    ReleasedVersions newer;
    std::copy_if(versions.rbegin(), versions.rend(), std::back_inserter(newer),
                 [&version](const ReleasedVersion &each) { return isNewerVersion(each.version, version); });
    return newer;
}

QDate releaseDate(const QString &version, const ReleasedVersions &versions)
{
    const auto found =
        std::find_if(versions.begin(), versions.end(), [key = versionKey(version)](const ReleasedVersion &each) {
            return versionKey(each.version) == key;
        });
    return found == versions.end() ? QDate() : found->date;
}

QString shownVersion(const QString &version)
{
    return cut(version, longestVersion);
}

QString releaseNotes(const ReleasedVersions &versions)
{
    QString html;
    Room room;
    for (const ReleasedVersion &version : versions) {
        if (!room.isLeft())
            break;
        room.take(shownVersion(version.version));
        html += heading(version) + changeList(version.changes, &room);
    }
    return html;
}
