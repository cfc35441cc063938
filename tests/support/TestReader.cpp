// SPDX-License-Identifier: MIT
// The tag reader of the tests: the program's own, but for files with certain names, on which it does what a hostile
// file may make a reader do.
#include "tags/TagReaderService.h"

#include <QFileInfo>
#include <QHash>

#include <csignal>

#include <unistd.h>

namespace {

[[noreturn]] void sayAndWait(const QByteArray &bytes)
{
    if (::write(STDOUT_FILENO, bytes.constData(), static_cast<std::size_t>(bytes.size())) < 0)
        std::raise(SIGKILL);
    for (;;)
        ::pause();
}

[[noreturn]] void loop()
{
    for (volatile bool endless = true; endless;)
        continue;
    std::abort();
}

void misbehave(const QString &name)
{
    if (name == QLatin1String("crash"))
        std::raise(SIGKILL);
    if (name == QLatin1String("crash-by-itself"))
        std::raise(SIGXCPU);
    if (name == QLatin1String("loop"))
        loop();
    tags::ReadAnswer wrongNumber;
    wrongNumber.number = 4711;
    const QHash<QString, QByteArray> answers{{QStringLiteral("stall"), {}},
                                             {QStringLiteral("drip"), QByteArray(3, '\0')},
                                             {QStringLiteral("endless"), QByteArray(8, '\xff')},
                                             {QStringLiteral("noise"), QByteArray("\0\0\0\x04noise", 9)},
                                             {QStringLiteral("wrong-number"), encoded(wrongNumber)}};
    if (answers.contains(name))
        sayAndWait(answers.value(name));
}

} // namespace

int main(int argc, char **argv)
{
    int filesRead = 0;
    return tags::runReader(argc, argv, [&filesRead](const tags::ReadRequest &request) {
        const QString name = QFileInfo(request.path).completeBaseName().section(QLatin1String(" - "), -1);
        misbehave(name);
        if (name == QLatin1String("slow") && request.seconds < 10) // on a disk that has to start first
            sayAndWait({});
        if (name == QLatin1String("crash-when-tired") && filesRead > 0)
            std::raise(SIGKILL);
        if (name == QLatin1String("forget-when-tired") && filesRead > 0)
            return tags::TagSummary();
        ++filesRead;
        return tags::readSummary(request);
    });
}
