// SPDX-License-Identifier: MIT
// What a reader process that was taken over may send, in pieces of any size.
#include "FuzzInput.h"
#include "tags/CoverImage.h"
#include "tags/TagReaderProtocol.h"
#include "tags/TagText.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <QDataStream>

namespace {

void checkAnswer(const QByteArray &message)
{
    const auto answer = tags::parseAnswer(message);
    if (!answer)
        return;
    const tags::TagSummary &summary = answer->summary;
    require(summary.duration >= 0 && summary.failure <= tags::lastFailureOfFile);
    require(thumbnailSize(summary.thumbnail.size()) == summary.thumbnail.size());
    for (const QString &value : summary.values)
        require(value.size() <= tags::maximumLyricsLength && !value.contains(QChar(QChar::Null)));
    // What was taken is sent and taken as the same once more.
    const auto again = tags::parseAnswer(tags::encoded(*answer).mid(sizeof(quint32)));
    require(again && again->summary.values == summary.values && again->summary.thumbnail == summary.thumbnail);
}

void checkStream(FuzzedDataProvider &data)
{
    tags::MessageBuffer buffer(1000);
    while (data.remaining_bytes() > 0 && !buffer.isBroken()) {
        const std::string piece = data.ConsumeRandomLengthString(300);
        buffer.append(piece.data(), static_cast<int>(piece.size()));
        while (const auto message = buffer.next()) {
            require(message->size() <= 1000);
            checkAnswer(*message);
            static_cast<void>(tags::parseRequest(*message));
        }
    }
}

// An answer of the right form with any content.
QByteArray forgedAnswer(FuzzedDataProvider &data)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_5_15);
    stream << data.ConsumeIntegral<quint32>() << data.ConsumeIntegralInRange<quint8>(0, 6)
           << data.ConsumeIntegral<qint32>();
    for (std::size_t i = 0; i < tags::allKeys.size(); ++i) {
        const std::string text = data.ConsumeRandomLengthString(40);
        stream << quint32(text.size());
        stream.writeRawData(text.data(), static_cast<int>(text.size()));
    }
    const QSize size(data.ConsumeIntegralInRange(-1, 60), data.ConsumeIntegralInRange(-1, 60));
    const bool isRight = data.ConsumeBool();
    stream << size << QByteArray(isRight ? qMax(0, size.width() * size.height() * 4) : 100, '\7');
    return bytes;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    FuzzedDataProvider data(bytes, size);
    if (data.ConsumeBool())
        checkAnswer(forgedAnswer(data));
    else
        checkStream(data);
    return 0;
}
