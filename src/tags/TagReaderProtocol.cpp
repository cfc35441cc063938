// SPDX-License-Identifier: MIT
#include "tags/TagReaderProtocol.h"

#include "tags/CoverImage.h"
#include "tags/TagText.h"

#include <QDataStream>
#include <QtEndian>

namespace tags {

namespace {

constexpr int lengthBytes = sizeof(quint32);
constexpr int bytesPerPixel = 4;
constexpr QImage::Format pixelFormat = QImage::Format_ARGB32;

static_assert(maximumAnswerBytes >
              2 * (maximumLyricsLength + static_cast<int>(allKeys.size()) * maximumFieldLength) + 16 * 1024);

template<typename Fill>
QByteArray framed(Fill fill)
{
    QByteArray message;
    QDataStream stream(&message, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_5_15);
    stream << quint32(0);
    fill(stream);
    qToBigEndian(static_cast<quint32>(message.size() - lengthBytes), message.data());
    return message;
}

// False unless all of the message was understood.
template<typename Take>
bool taken(const QByteArray &message, Take take)
{
    QDataStream stream(message);
    stream.setVersion(QDataStream::Qt_5_15);
    take(stream);
    return stream.status() == QDataStream::Ok && stream.atEnd();
}

// The pixels row by row, each as four bytes in the order of this machine: both ends are the same program.
void writeImage(QDataStream &stream, const QImage &image)
{
    const QImage plain = image.convertToFormat(pixelFormat);
    QByteArray pixels;
    for (int y = 0; y < plain.height(); ++y)
        pixels.append(reinterpret_cast<const char *>(plain.constScanLine(y)), plain.width() * bytesPerPixel);
    stream << plain.size() << pixels;
}

// Marks the stream as corrupt when this cannot be a thumbnail.
QImage readImage(QDataStream &stream)
{
    QSize size;
    QByteArray pixels;
    stream >> size >> pixels;
    if (size.isEmpty() && pixels.isEmpty())
        return {};
    if (size.isEmpty() || thumbnailSize(size) != size ||
        pixels.size() != size.width() * size.height() * bytesPerPixel) {
        stream.setStatus(QDataStream::ReadCorruptData);
        return {};
    }
    return QImage(reinterpret_cast<const uchar *>(pixels.constData()), size.width(), size.height(),
                  size.width() * bytesPerPixel, pixelFormat)
        .copy();
}

int maximumLength(QLatin1String key)
{
    return key == keys::lyrics ? maximumLyricsLength : maximumFieldLength;
}

} // namespace

QByteArray encoded(const ReadRequest &request)
{
    const QByteArray message = framed([&](QDataStream &stream) {
        stream << request.number << request.decodeCover << request.seconds << request.path;
    });
    return message.size() <= maximumRequestBytes ? message : QByteArray();
}

QByteArray encoded(const ReadAnswer &answer)
{
    const TagSummary &summary = answer.summary;
    return framed([&](QDataStream &stream) {
        stream << answer.number << static_cast<quint8>(summary.failure) << qint32(summary.duration);
        for (const QString &value : summary.values)
            stream << value;
        writeImage(stream, summary.thumbnail);
    });
}

std::optional<ReadRequest> parseRequest(const QByteArray &message)
{
    ReadRequest request;
    const bool whole = taken(message, [&](QDataStream &stream) {
        stream >> request.number >> request.decodeCover >> request.seconds >> request.path;
    });
    return whole ? std::make_optional(request) : std::nullopt;
}

std::optional<ReadAnswer> parseAnswer(const QByteArray &message)
{
    ReadAnswer answer;
    TagSummary &summary = answer.summary;
    quint8 failure = 0;
    const bool whole = taken(message, [&](QDataStream &stream) {
        stream >> answer.number >> failure >> summary.duration;
        for (QString &value : summary.values)
            stream >> value;
        summary.thumbnail = readImage(stream);
    });
    if (!whole || failure > static_cast<quint8>(lastFailureOfFile) || summary.duration < 0)
        return std::nullopt;
    summary.failure = static_cast<ReadFailure>(failure);
    for (std::size_t i = 0; i < allKeys.size(); ++i)
        summary.values[i] = cleanedText(summary.values[i], maximumLength(allKeys[i]));
    return answer;
}

std::optional<QByteArray> MessageBuffer::next()
{
    if (m_broken || m_bytes.size() < lengthBytes)
        return std::nullopt;
    const auto length = qFromBigEndian<quint32>(m_bytes.constData());
    m_broken = length > static_cast<quint32>(m_maximumBytes);
    if (m_broken || static_cast<quint32>(m_bytes.size() - lengthBytes) < length)
        return std::nullopt;
    const QByteArray message = m_bytes.mid(lengthBytes, static_cast<int>(length));
    m_bytes.remove(0, lengthBytes + static_cast<int>(length));
    return message;
}

} // namespace tags
