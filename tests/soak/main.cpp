// SPDX-License-Identifier: MIT
#include "soak/FailingSites.h"
#include "soak/Soak.h"

#include "app/Application.h"
#include "support/TestFolder.h"
#include "tags/TagReaderService.h"

#include <QCommandLineParser>
#include <QFile>

#include <malloc.h>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

constexpr int tenths = 10;
// By so much the memory in use differs from one tenth to the next: connections are open or not, pools grow in steps.
constexpr std::size_t chanceBytes = std::size_t{1024} * 1024;

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
    const auto addNumber = [&parser](const char *name, const char *description, const char *usual) {
        parser.addOption({QLatin1String(name), QLatin1String(description), QStringLiteral("n"), QLatin1String(usual)});
    };
    addNumber("seconds", "How long to work.", "1800");
    addNumber("songs", "How many files to make.", "5000");
    addNumber("seed", "What the dice begin with.", "1");
    parser.process(*QCoreApplication::instance());
    const auto number = [&parser](const char *name) {
        return parser.value(QLatin1String(name)).toUInt();
    };
    return {static_cast<int>(number("seconds")), static_cast<int>(number("songs")), number("seed")};
}

// With an empty list.
std::size_t usedBytes()
{
    const struct mallinfo2 heap = mallinfo2();
    return heap.uordblks + heap.hblkhd;
}

// Whether even the least of the last three tenths is above the first.
bool hasGrown(const std::vector<std::size_t> &used)
{
    return *std::min_element(used.end() - 3, used.end()) > used.front() + chanceBytes;
}

// One tenth of the time. How many faults there were.
int workOnce(Soak &soak, std::chrono::milliseconds time)
{
    soak.work(time);
    const QStringList faults = soak.faults();
    std::printf("%s; %d faults", qPrintable(soak.summary()), static_cast<int>(faults.size()));
    for (const QString &fault : faults.mid(0, 20))
        std::printf("\n  %s", qPrintable(fault));
    soak.clear();
    return faults.size();
}

int run(Application &app, const Wishes &wishes)
{
    Soak soak(app, wishes.songs, wishes.seed);
    int faults = 0;
    std::vector<std::size_t> used;
    while (used.size() < std::size_t{tenths}) {
        faults += workOnce(soak, std::chrono::milliseconds(wishes.seconds * 1000 / tenths));
        used.push_back(usedBytes());
        std::printf("; %zu kB in use with an empty list\n", used.back() / 1024);
        std::fflush(stdout);
    }
    const bool grown = hasGrown(used);
    std::printf("%d faults; memory %s since the first tenth\n", faults, grown ? "has GROWN" : "has not grown");
    return faults > 0 || grown ? 1 : 0;
}

} // namespace

int main(int argc, char **argv)
{
    if (tags::isReaderCall(argc, argv))
        return tags::runReader(argc, argv);
    const TestFolder folder;
    folder.holdSettings();
    qputenv("XDG_DATA_HOME", QFile::encodeName(folder.path()));
    Application app(argc, argv, QStringLiteral("/proc/self/exe"));
    const Wishes wishes = readWishes();
    LyricsSites sites(failingAnswers(wishes.seed));
    sites.startSites();
    return run(app, wishes);
}
