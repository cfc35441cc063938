// SPDX-License-Identifier: MIT
#include "updates/UpdateInformation.h"

#include "updates/VersionOrder.h"

#include <QRegularExpression>
#include <QXmlStreamReader>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

// QXmlStreamReader compares every attribute of a tag with all others: 256 kB of them take 14 s.
constexpr int mostAttributes = 64;

// More than anybody has released; what is built from them must not hold up the window.
constexpr std::size_t mostVersions = 1000;

// Counts, after each "<", what looks like the beginning of an attribute's value. A value cannot hold "<", so a tag has
// at most as many attributes.
bool hasTooManyAttributes(const QByteArray &document)
{
    int count = 0;
    char previous = 0;
    for (const char c : document) {
        if (c == '<')
            count = 0;
        else if ((c == '"' || c == '\'') && previous == '=')
            ++count;
        if (count > mostAttributes)
            return true;
        if (c != ' ' && c != '\t' && c != '\r' && c != '\n')
            previous = c;
    }
    return false;
}

QByteArray withRoot(const QByteArray &document)
{
    return document.contains("<UpdateInfo>") ? document : "<UpdateInfo>" + document + "</UpdateInfo>";
}

// "day/month/year"; null when it is not one.
QDate readDate(const QString &text)
{
    const QStringList parts = text.split(QLatin1Char('/'));
    if (parts.size() != 3)
        return {};
    return {parts[2].toInt(), parts[1].toInt(), parts[0].toInt()};
}

QString readText(QXmlStreamReader *reader)
{
    return reader->readElementText(QXmlStreamReader::SkipChildElements).trimmed();
}

// With the text of child elements. Qt's own way calls itself for each of them and can be made to overrun the stack.
QString readWholeText(QXmlStreamReader *reader)
{
    QString text;
    for (int depth = 1; depth > 0 && !reader->atEnd();) {
        reader->readNext();
        if (reader->isStartElement())
            ++depth;
        else if (reader->isEndElement())
            --depth;
        else if (reader->isCharacters())
            text += reader->text();
    }
    return text;
}

ReleasedVersion readVersion(QXmlStreamReader *reader)
{
    ReleasedVersion version;
    while (reader->readNextStartElement()) {
        const QStringRef name = reader->qualifiedName();
        if (name == QLatin1String("current"))
            version.version = readText(reader);
        else if (name == QLatin1String("url"))
            version.url = readText(reader);
        else if (name == QLatin1String("changes"))
            version.changes = readWholeText(reader);
        else if (name == QLatin1String("date"))
            version.date = readDate(readText(reader));
        else if (name == QLatin1String("signature"))
            version.signature = readText(reader).toLatin1();
        else
            reader->skipCurrentElement();
    }
    return version;
}

bool isVersion(const QString &text)
{
    static const QRegularExpression pattern(QRegularExpression::anchoredPattern(QStringLiteral("[0-9.]{1,32}")));
    return pattern.match(text).hasMatch();
}

// The newest of them, the newest last. Keys are made once for each version and not for each comparison.
ReleasedVersions sorted(const ReleasedVersions &versions)
{
    std::vector<std::pair<QByteArray, int>> keys;
    keys.reserve(static_cast<std::size_t>(versions.size()));
    for (int i = 0; i < versions.size(); ++i)
        keys.emplace_back(versionKey(versions[i].version), i);
    std::sort(keys.begin(), keys.end());
    const std::size_t first = keys.size() - std::min(keys.size(), mostVersions);
    ReleasedVersions result;
    for (std::size_t i = first; i < keys.size(); ++i)
        result.append(versions[keys[i].second]);
    return result;
}

} // namespace

ReleasedVersions readUpdateInformation(const QByteArray &document)
{
    // A document type must not even be read: 1 MiB of attribute declarations take QXmlStreamReader 15 s.
    if (document.contains("<!DOCTYPE") || hasTooManyAttributes(document))
        return {};
    QXmlStreamReader reader(QString::fromUtf8(withRoot(document)));
    reader.setNamespaceProcessing(false);
    if (!reader.readNextStartElement() || reader.qualifiedName() != QLatin1String("UpdateInfo"))
        return {};
    ReleasedVersions versions;
    while (reader.readNextStartElement()) {
        if (reader.qualifiedName() != QLatin1String("VersionInfo")) {
            reader.skipCurrentElement();
            continue;
        }
        const ReleasedVersion version = readVersion(&reader);
        if (isVersion(version.version))
            versions.append(version);
    }
    while (!reader.atEnd())
        reader.readNext();
    if (reader.hasError())
        return {};
    return sorted(versions);
}
