// SPDX-License-Identifier: MIT
#include "Benches.h"
#include "Table.h"

#include "lyrics/LyricsProvider.h"
#include "lyrics/LyricsSearch.h"
#include "lyrics/providers/ProviderCatalogue.h"
#include "model/MainModel.h"
#include "network/AccessManager.h"
#include "network/Endpoints.h"
#include "support/LoopbackServer.h"
#include "tags/TagWriter.h"

#include <QCoreApplication>
#include <QFile>
#include <QSemaphore>
#include <QSettings>
#include <QTemporaryDir>
#include <QThread>

namespace {

constexpr std::chrono::milliseconds pageTime(50);
constexpr int pagesPerSong = 2;
constexpr int connectionsPerHost = 6;

// A site in a thread of its own, so that its work is not counted as the program's.
class SiteThread : public QThread
{
public:
    ~SiteThread() override
    {
        quit();
        wait();
    }

    QString startSite()
    {
        start();
        m_ready.acquire();
        return m_base;
    }

protected:
    void run() override
    {
        LoopbackServer site;
        site.route(QStringLiteral("/search.php"), [](const LoopbackRequest &request) {
            const QByteArray song = request.query.queryItemValue(QStringLiteral("q"), QUrl::FullyDecoded).toUtf8();
            return slowPage("<html><body><div class=\"row\" data-sorting-artist=\"Artist\" data-sorting-song=\"" +
                            song + "\"><a href=\"/lyrics\" class=\"song\">" + song + "</a></div></body></html>");
        });
        site.route(QStringLiteral("/lyrics"),
                   slowPage("<html><body><div id=\"content\" class=\"l\">la la<br>la</div></body></html>"));
        m_base = site.base();
        m_ready.release();
        exec();
    }

private:
    static LoopbackResponse slowPage(const QByteArray &html)
    {
        LoopbackResponse page = LoopbackResponse::page(html);
        page.delay = pageTime;
        return page;
    }

    QSemaphore m_ready;
    QString m_base;
};

QList<QUrl> copySongs(const QString &folder, int count)
{
    QList<QUrl> urls;
    for (int i = 0; i < count; ++i) {
        const QString copy = QStringLiteral("%1/Artist - Song %2.mp3").arg(folder).arg(i);
        if (!QFile::copy(QStringLiteral(VERSEWELL_SAMPLES_DIR "/untagged.mp3"), copy))
            qFatal("cannot copy the sample");
        urls.append(QUrl::fromLocalFile(copy));
    }
    return urls;
}

void searchAll(const QList<QUrl> &songs)
{
    AccessManager manager;
    LyricsSearch search;
    for (std::unique_ptr<LyricsProvider> &provider : makeProviders(&manager))
        search.addProvider(std::move(provider));
    MainModel model;
    model.setReaderProgram(QCoreApplication::applicationFilePath());
    model.setSearch(&search);
    model.add(songs);
    while (model.activeCount() > 0)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    for (int row = 0; row < model.rowCount(); ++row) {
        if (model.itemAt(row)->lyricsTag().isEmpty())
            qFatal("a song was not found: %s", qPrintable(model.itemAt(row)->errorString()));
    }
    model.setSearch(nullptr);
}

} // namespace

void benchSearching()
{
    SiteThread site;
    const QString base = site.startSite();
    for (const Endpoint endpoint : allEndpoints())
        QSettings().setValue(endpointGroup() + QLatin1Char('/') + endpointKey(endpoint), base);
    reloadEndpoints();
    const QTemporaryDir folder;
    const QList<QUrl> songs = copySongs(folder.path(), 200);
    const double bound =
        std::chrono::duration<double>(pageTime).count() * pagesPerSong * songs.size() / connectionsPerHost;
    BenchTable::printRow(QStringLiteral("search songs, 50 ms a page / six connections"), songs.size(),
                         secondsOf([&songs] { searchAll(songs); }), bound);
    TagWriter::waitForQueued(std::chrono::seconds(30));
}
