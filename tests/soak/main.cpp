// SPDX-License-Identifier: MIT
#include "soak/FailingSites.h"
#include "soak/Soak.h"

#include "lyrics/LyricsProvider.h"
#include "lyrics/LyricsSearch.h"
#include "lyrics/providers/ProviderCatalogue.h"
#include "model/MainModel.h"
#include "network/AccessManager.h"
#include "tags/TagReaderService.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QSettings>

#include <malloc.h>

#include <algorithm>
#include <cstdio>

namespace {

constexpr int rounds = 10;
// What a list that was filled and emptied again may hold on to: connections that are kept open, pools that grow in
// steps.
constexpr double allowedGrowth = 1.1;
constexpr size_t allowedBytes = size_t{2} * 1024 * 1024;

struct Wishes
{
    int seconds;
    int songs;
    quint32 seed;
};

Wishes readWishes()
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Adds, searches, edits and removes songs at random, against sites "
                                                    "that fail at random; tells whether memory grew, a "
                                                    "song got stuck, or the list and the files disagree."));
    parser.addHelpOption();
    const QCommandLineOption seconds(QStringLiteral("seconds"), QStringLiteral("How long to work."),
                                     QStringLiteral("n"), QStringLiteral("1800"));
    const QCommandLineOption songs(QStringLiteral("songs"), QStringLiteral("How many files to make."),
                                   QStringLiteral("n"), QStringLiteral("5000"));
    const QCommandLineOption seed(QStringLiteral("seed"), QStringLiteral("What the dice begin with."),
                                  QStringLiteral("n"), QStringLiteral("1"));
    parser.addOptions({seconds, songs, seed});
    parser.process(*QCoreApplication::instance());
    return {parser.value(seconds).toInt(), parser.value(songs).toInt(), parser.value(seed).toUInt()};
}

// With an empty list.
size_t usedBytes()
{
    return mallinfo2().uordblks + mallinfo2().hblkhd;
}

// One tenth of the time. How many faults there were.
int workOnce(Soak &soak, MainModel &model, std::chrono::milliseconds time)
{
    soak.work(time);
    const QStringList faults = soak.faults();
    std::printf("%s; %d faults", qPrintable(soak.summary()), static_cast<int>(faults.size()));
    for (const QString &fault : faults.mid(0, 20))
        std::printf("\n  %s", qPrintable(fault));
    model.removeAll();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    return faults.size();
}

int run(MainModel &model, const Wishes &wishes)
{
    Soak soak(&model, wishes.songs, wishes.seed);
    int faults = 0;
    size_t first = 0;
    size_t last = 0;
    for (int round = 0; round < rounds; ++round) {
        faults += workOnce(soak, model, std::chrono::milliseconds(wishes.seconds * 1000 / rounds));
        last = usedBytes();
        first = round == 0 ? last : first;
        std::printf("; %zu kB in use with an empty list\n", last / 1024);
        std::fflush(stdout);
    }
    const bool grown =
        static_cast<double>(last) > static_cast<double>(first) * allowedGrowth && last - first > allowedBytes;
    std::printf("%d faults; memory %s since the first tenth\n", faults, grown ? "has GROWN" : "has not grown");
    return faults > 0 || grown ? 1 : 0;
}

} // namespace

int main(int argc, char **argv)
{
    if (tags::isReaderCall(argc, argv))
        return tags::runReader(argc, argv);
    const QGuiApplication app(argc, argv);
    const QTemporaryDir configuration;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, configuration.path());
    QCoreApplication::setOrganizationName(QStringLiteral("Quillmarsh"));
    QCoreApplication::setApplicationName(QStringLiteral("Versewell"));
    const Wishes wishes = readWishes();
    LyricsSites sites(failingAnswers(wishes.seed));
    sites.startSites();
    AccessManager manager;
    LyricsSearch search;
    for (std::unique_ptr<LyricsProvider> &provider : makeProviders(&manager))
        search.addProvider(std::move(provider));
    MainModel model;
    model.setReaderProgram(QCoreApplication::applicationFilePath());
    model.setDataFolder(configuration.filePath(QStringLiteral("saves")));
    model.setSearch(&search);
    const int status = run(model, wishes);
    model.setSearch(nullptr);
    return status;
}
