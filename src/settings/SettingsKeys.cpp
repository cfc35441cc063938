// SPDX-License-Identifier: MIT
#include "settings/SettingsKeys.h"

#include "network/Endpoints.h"

#include <QSettings>
#include <QStringList>

#include <array>

namespace {

constexpr int smallestListWidth = 100;
constexpr int largestListWidth = 10000;

struct Row
{
    SettingsKey key;
    const char *name;
    QMetaType::Type type;
    const char *defaultText; // null: no default
    const char *meaning;
};

constexpr std::array<Row, 25> table{{
    {SettingsKey::LyricsFontSize, "lyricsFontSize", QMetaType::Int, "12", "point size of the lyrics, 6 to 40"},
    {SettingsKey::Language, "language", QMetaType::QString, "", "code of the interface language; empty: the system's"},
    {SettingsKey::ProxyType, "proxy/type", QMetaType::Int, "0", "0 no proxy, 1 SOCKS5, 2 HTTP"},
    {SettingsKey::ProxyAddress, "proxy/address", QMetaType::QString, "", "host name or address of the proxy"},
    {SettingsKey::ProxyPort, "proxy/port", QMetaType::Int, "0", "port of the proxy, 0 to 65535"},
    {SettingsKey::ProxyAuthentication, "proxy/authentication", QMetaType::Bool, "false",
     "whether user name and password are sent to the proxy"},
    {SettingsKey::ProxyUsername, "proxy/username", QMetaType::QString, "", "user name for the proxy, enciphered"},
    {SettingsKey::ProxyPassword, "proxy/password", QMetaType::QString, "", "password for the proxy, enciphered"},
    {SettingsKey::SaveFilesList, "saveFilesList", QMetaType::Bool, "false", "whether the list of files is kept"},
    {SettingsKey::SearchProvider, "searchProvider", QMetaType::QString, "",
     "engine for searches in the browser; empty: Google"},
    {SettingsKey::GenerateLyricsFileAuto, "generateLyricsFileAuto", QMetaType::Bool, "false",
     "whether found lyrics also go into a text file beside the song"},
    {SettingsKey::PrependNewLine, "prependNewLine", QMetaType::Bool, "false",
     "whether a line break is put before found lyrics"},
    {SettingsKey::ProvidersOrder, "providersOrder", QMetaType::QString, "",
     "order of the lyrics sites, and which are off; empty: the built-in order"},
    {SettingsKey::Geometry, "geometry", QMetaType::QByteArray, nullptr, "place and size of the main window"},
    {SettingsKey::ListWidth, "listWidth", QMetaType::Int, nullptr,
     "width of the list of files in pixels, 100 to 10000"},
    {SettingsKey::FilesList, "filesList", QMetaType::QStringList, "",
     "addresses of the listed files in row order; absolute paths are read too"},
    {SettingsKey::LastFileDir, "lastFileDir", QMetaType::QString, "/", "folder from which files were added last"},
    {SettingsKey::LastFolderDir, "lastFolderDir", QMetaType::QString, "/", "folder that was added last"},
    {SettingsKey::OpenGlMethod, "openGlMethod", QMetaType::Int, "2",
     "how the window is drawn: 0 automatic, 1 OpenGL ES, 2 software, 3 desktop OpenGL"},
    {SettingsKey::FirstStart, "FirstStart", QMetaType::QString, "",
     "version that ran last; empty before the first run"},
    {SettingsKey::OpenQuillmarshSite, "openQuillmarshSite", QMetaType::Bool, "true",
     "whether the welcome and what's-new pages may be opened"},
    {SettingsKey::UsageStatistics, "usageStatistics", QMetaType::Bool, nullptr,
     "whether usage events may be sent; absent: not asked yet, which counts as no"},
    {SettingsKey::TrackerClientId, "tracker/clientId", QMetaType::QString, "",
     "random identifier in usage events; there only after a yes"},
    {SettingsKey::UpdaterPeriod, "updater/period", QMetaType::Int, "1440",
     "minutes between two checks for a new version; 0: never"},
    {SettingsKey::UpdaterSkippedVersion, "updater/skippedVersion", QMetaType::QString, "",
     "version that is not to be offered again"},
}};

constexpr bool tableFollowsEnum()
{
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (table[i].key != static_cast<SettingsKey>(i))
            return false;
    }
    return table.back().name != nullptr;
}
static_assert(tableFollowsEnum(), "rows are found by the number of their key");

const Row &rowOf(SettingsKey key)
{
    return table[static_cast<std::size_t>(key)];
}

QVariant defaultOf(const Row &row)
{
    if (!row.defaultText)
        return {};
    if (row.type == QMetaType::QStringList)
        return QStringList();
    QVariant value(QString::fromLatin1(row.defaultText));
    value.convert(row.type);
    return value;
}

} // namespace

QString keyName(SettingsKey key)
{
    return QString::fromLatin1(rowOf(key).name);
}

QVariant keyDefault(SettingsKey key)
{
    return defaultOf(rowOf(key));
}

QVariant storedValue(const QSettings &store, SettingsKey key)
{
    return store.value(keyName(key), keyDefault(key));
}

bool flagOf(const QVariant &stored)
{
    const QString text = stored.toString();
    return text.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0 || text == QLatin1String("1");
}

std::optional<int> numberOf(const QVariant &stored, int smallest, int largest)
{
    bool isNumber = false;
    const qlonglong number = stored.toLongLong(&isNumber);
    if (!isNumber || number < smallest || number > largest)
        return {};
    return static_cast<int>(number);
}

std::optional<int> storedListWidth(const QSettings &store)
{
    return numberOf(storedValue(store, SettingsKey::ListWidth), smallestListWidth, largestListWidth);
}

QVector<SettingsKeyRow> settingsKeyTable()
{
    QVector<SettingsKeyRow> rows;
    for (const Row &row : table)
        rows.append({QString::fromLatin1(row.name), row.type, defaultOf(row), QString::fromLatin1(row.meaning)});
    for (const Endpoint endpoint : allEndpoints()) {
        rows.append({endpointGroup() + QLatin1Char('/') + endpointKey(endpoint), QMetaType::QString,
                     endpointDefault(endpoint).toString(),
                     QStringLiteral("base address, http or https, without a trailing slash")});
    }
    return rows;
}
