// SPDX-License-Identifier: MIT
// The tag reader of the tests: the program's own, but for files with certain names, on which it does what a hostile
// file may make a reader do.
#include "tags/TagReaderService.h"

#include <QFileInfo>
#include <QHash>

#include <csignal>
#include <functional>

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
    tags::ReadAnswer wrongNumber;
    wrongNumber.number = 4711;
    const QHash<QString, std::function<void()>> manners{
        {QStringLiteral("crash"),
         [] {
             std::raise(SIGKILL);
         }},
        {QStringLiteral("crash-by-itself"),
         [] {
             std::raise(SIGXCPU);
         }},
        {QStringLiteral("stall"),
         [] {
             sayAndWait({});
         }},
        {QStringLiteral("loop"), loop},
        {QStringLiteral("drip"),
         [] {
             sayAndWait(QByteArray(3, '\0'));
         }},
        {QStringLiteral("endless"),
         [] {
             sayAndWait(QByteArray(8, '\xff'));
         }},
        {QStringLiteral("noise"),
         [] {
             sayAndWait(QByteArray("\0\0\0\x04noise", 9));
         }},
        {QStringLiteral("wrong-number"),
         [&] {
             sayAndWait(encoded(wrongNumber));
         }},
    };
    const auto found = manners.find(name);
    if (found != manners.end())
        (*found)();
}

} // namespace

int main(int argc, char **argv)
{
    int filesRead = 0;
    return tags::runReader(argc, argv, [&filesRead](const tags::ReadRequest &request) {
        const QString name = QFileInfo(request.path).completeBaseName().section(QLatin1String(" - "), -1);
        misbehave(name);
        if (name == QLatin1String("crash-when-tired") && filesRead > 0)
            std::raise(SIGKILL);
        ++filesRead;
        return tags::readSummary(request);
    });
}
