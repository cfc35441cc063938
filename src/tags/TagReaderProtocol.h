// SPDX-License-Identifier: MIT
#pragma once

#include "tags/TagSummary.h"

#include <QByteArray>
#include <QString>

#include <optional>

// What the program and its reader process say to each other. Each message is its length in four bytes, the most
// significant first, and that many bytes in QDataStream's form of Qt 5.15.
//
// A reader process that a hostile file has taken over may send anything: whatever is parsed here is bounded in size
// and valid, or it is nothing.
namespace tags {

struct ReadRequest
{
    quint32 number = 0; // counts up from 1
    QString path;
    bool decodeCover = true;
    quint8 seconds = 5; // how long the reading may take
};

struct ReadAnswer
{
    quint32 number = 0; // of the request; 0 stands in the one message that says that the reader is ready
    TagSummary summary;
};

constexpr int maximumRequestBytes = 64 * 1024;
// The longest lyrics and the longest text for every other key, in UTF-16, with room for all else.
constexpr int maximumAnswerBytes = 4 * 1024 * 1024;

// With the length in front. A request whose path is too long gives an empty text.
[[nodiscard]] QByteArray encoded(const ReadRequest &request);
[[nodiscard]] QByteArray encoded(const ReadAnswer &answer);

// Of messages without their length.
[[nodiscard]] std::optional<ReadRequest> parseRequest(const QByteArray &message);
[[nodiscard]] std::optional<ReadAnswer> parseAnswer(const QByteArray &message);

// Cuts what arrives into messages.
class MessageBuffer
{
public:
    explicit MessageBuffer(int maximumBytes)
        : m_maximumBytes(maximumBytes)
    {
    }

    void append(const char *bytes, int size) { m_bytes.append(bytes, size); }
    // Nothing while the next message is not complete, and for ever after one that is too long.
    [[nodiscard]] std::optional<QByteArray> next();
    // A message was announced that is longer than allowed.
    [[nodiscard]] bool isBroken() const { return m_broken; }

private:
    int m_maximumBytes;
    QByteArray m_bytes;
    bool m_broken = false;
};

} // namespace tags
