// SPDX-License-Identifier: MIT
#pragma once

#include "tags/FileBytes.h"

#include <QHash>
#include <QVector>

namespace tags {

struct OggPacket
{
    quint32 stream = 0; // serial number of the logical stream
    QByteArray data;
    qint64 granule = -1; // of the page that it ends, as the codec counts; -1 for a packet that ends no page
};

// Takes an Ogg file (RFC 3533) apart into the packets of all its streams, in the order in which they end: two files
// with the same packets play alike, however their pages are cut and numbered.
class OggPackets
{
public:
    explicit OggPackets(const FileBytes &file);

    // False at the end, and where no page follows though the file goes on (see isWhole()).
    bool next(OggPacket &packet);

    // What was seen so far of pages whose number does not follow the one before, or whose checksum is wrong.
    [[nodiscard]] int faults() const { return m_faults; }
    // True when next() came to the end of the file.
    [[nodiscard]] bool isWhole() const { return m_place >= m_file.size(); }

private:
    bool readPage();
    void checkPage(const QByteArray &page, quint32 stream);
    void addSegments(const QByteArray &lengths, const char *content, const OggPacket &ofPage);
    [[nodiscard]] QByteArray bytesAt(qint64 offset, int length);

    const FileBytes &m_file;
    qint64 m_place = 0;
    QByteArray m_window;
    qint64 m_windowStart = 0;
    QVector<OggPacket> m_ready; // packets of the page that was read last
    int m_nextReady = 0;
    QHash<quint32, QByteArray> m_unfinished;
    QHash<quint32, quint32> m_nextNumber;
    int m_faults = 0;
};

} // namespace tags
