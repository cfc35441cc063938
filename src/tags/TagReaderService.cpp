// SPDX-License-Identifier: MIT
#include "tags/TagReaderService.h"

#include "tags/MediaFileTags.h"
#include "tags/TagReaderProcess.h"

#include <QCoreApplication>

#include <array>
#include <cerrno>
#include <cstring>
#include <ctime>
#include <new>

#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/time.h>
#include <unistd.h>

namespace tags {

namespace {

// Parsers take a few megabytes; a cover of the greatest size some hundred.
constexpr rlim_t memoryBytes = rlim_t{512} * 1024 * 1024;
constexpr rlim_t processorSeconds = 5;
constexpr int socketBlockBytes = 64 * 1024;

#if defined(__SANITIZE_ADDRESS__)
constexpr bool hasSanitizer = true;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
constexpr bool hasSanitizer = true;
#else
constexpr bool hasSanitizer = false;
#endif
#else
constexpr bool hasSanitizer = false;
#endif

void setLimits()
{
    ::prctl(PR_SET_NAME, "versewell-tags", 0, 0, 0);
    const rlimit noCore{0, 0};
    ::setrlimit(RLIMIT_CORE, &noCore);
    if (hasSanitizer)
        return; // it reserves terabytes of addresses
    const rlimit memory{memoryBytes, memoryBytes};
    ::setrlimit(RLIMIT_AS, &memory);
    // Where cores go to a program, no limit on their size counts.
    ::prctl(PR_SET_DUMPABLE, 0, 0, 0, 0);
}

// Ends the process when one file takes too long, whatever has become of the program. Its death alone would not do:
// a parser in an endless loop does not notice.
class TimeLimit
{
public:
    explicit TimeLimit(time_t seconds)
    {
        timespec used{};
        ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
        const rlimit processor{static_cast<rlim_t>(used.tv_sec) + processorSeconds, RLIM_INFINITY};
        ::setrlimit(RLIMIT_CPU, &processor);
        // One more than the program waits: this is for the case that the program is no longer there.
        setAlarm(seconds + 1);
    }
    ~TimeLimit() { setAlarm(0); }
    Q_DISABLE_COPY(TimeLimit)

private:
    static void setAlarm(time_t seconds)
    {
        const itimerval timer{{0, 0}, {seconds, 0}};
        ::setitimer(ITIMER_REAL, &timer, nullptr);
    }
};

bool writeAll(const QByteArray &message)
{
    for (int done = 0; done < message.size();) {
        const ssize_t put =
            ::write(STDOUT_FILENO, message.constData() + done, static_cast<std::size_t>(message.size() - done));
        if (put < 0 && errno == EINTR)
            continue;
        if (put <= 0)
            return false;
        done += static_cast<int>(put);
    }
    return true;
}

ReadAnswer answerTo(const ReadRequest &request, const SummaryReader &read)
{
    const TimeLimit limit(request.seconds);
    return {request.number, read(request)};
}

// False when there is nobody to talk to, or nobody that talks sense.
bool answerAll(MessageBuffer &requests, const SummaryReader &read)
{
    while (const std::optional<QByteArray> message = requests.next()) {
        const std::optional<ReadRequest> request = parseRequest(*message);
        if (!request || !writeAll(encoded(answerTo(*request, read))))
            return false;
    }
    return !requests.isBroken();
}

} // namespace

bool isReaderCall(int argc, const char *const *argv)
{
    return argc == 2 && std::strcmp(argv[1], TagReaderProcess::argument) == 0;
}

int runReader(int argc, char **argv, const SummaryReader &read)
{
    const QCoreApplication app(argc, argv); // knows where the decoders of pictures are
    setLimits();
    if (!writeAll(encoded(ReadAnswer())))
        return 1;
    MessageBuffer requests(maximumRequestBytes);
    std::array<char, socketBlockBytes> block;
    for (;;) {
        const ssize_t got = ::read(STDIN_FILENO, block.data(), block.size());
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            return got < 0;
        requests.append(block.data(), static_cast<int>(got));
        if (!answerAll(requests, read))
            return 1;
    }
}

int runReader(int argc, char **argv)
{
    return runReader(argc, argv, readSummary);
}

TagSummary readSummary(const ReadRequest &request)
{
    TagSummary failed;
    try {
        MediaFileTags tags;
        tags.read(request.path);
        if (request.decodeCover)
            tags.makeThumbnail();
        return tags.summary();
    } catch (const std::bad_alloc &) {
        failed.failure = ReadFailure::OutOfMemory;
    }
    return failed;
}

} // namespace tags
