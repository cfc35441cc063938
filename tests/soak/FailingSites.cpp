// SPDX-License-Identifier: MIT
#include "soak/FailingSites.h"

#include <memory>
#include <random>

namespace {

using namespace std::chrono_literals;

QByteArray rubbish(std::mt19937 &random)
{
    QByteArray bytes(static_cast<int>(random() % 20000), '\0');
    for (char &byte : bytes)
        byte = static_cast<char>(random());
    return bytes;
}

LoopbackResponse answerAtRandom(const QByteArray &found, std::mt19937 &random)
{
    LoopbackResponse response = LoopbackResponse::page(found);
    const quint32 dice = random() % 100;
    if (dice < 12)
        return LoopbackResponse::page("<html><body>Nothing</body></html>");
    if (dice < 20)
        return LoopbackResponse::error(404);
    if (dice < 26)
        return LoopbackResponse::error(500);
    if (dice < 30)
        return LoopbackResponse::page(rubbish(random));
    if (dice < 33)
        return LoopbackResponse::redirect(301, "/round");
    if (dice < 36)
        response.cutAfter = static_cast<qint64>(random()) % 40;
    else if (dice < 40)
        response.dripInterval = 1ms;
    else if (dice == 40)
        return LoopbackResponse::error(503).with("Retry-After", "1");
    else
        response.delay = std::chrono::milliseconds(random() % 20);
    return response;
}

} // namespace

LyricsSites::Answer failingAnswers(quint32 seed)
{
    const auto random = std::make_shared<std::mt19937>(seed);
    return [random](const LyricsSites::Request &request) {
        return answerAtRandom(request.found, *random);
    };
}
