// SPDX-License-Identifier: MIT
#include "tags/OggPackets.h"

#include <QtEndian>

#include <array>

namespace tags {

namespace {

constexpr int pageHeaderBytes = 27;
constexpr int checksumPlace = 22;
constexpr int windowBytes = 1024 * 1024;

using ChecksumTables = std::array<std::array<quint32, 256>, 4>;

// For four bytes at a time; polynomial 0x04c11db7, most significant bit first (RFC 3533, section 6).
ChecksumTables makeTables()
{
    ChecksumTables tables{};
    for (quint32 byte = 0; byte < 256; ++byte) {
        quint32 sum = byte << 24;
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum << 1) ^ ((sum & 0x80000000U) != 0 ? 0x04c11db7U : 0);
        tables[0][byte] = sum;
    }
    for (std::size_t k = 1; k < tables.size(); ++k) {
        for (std::size_t byte = 0; byte < 256; ++byte)
            tables[k][byte] = (tables[k - 1][byte] << 8) ^ tables[0][tables[k - 1][byte] >> 24];
    }
    return tables;
}

quint32 checksum(const QByteArray &page)
{
    static const ChecksumTables tables = makeTables();
    quint32 sum = 0;
    const auto *byte = reinterpret_cast<const uchar *>(page.constData());
    const uchar *const end = byte + page.size();
    for (; end - byte >= 4; byte += 4) {
        sum ^= qFromBigEndian<quint32>(byte);
        sum =
            tables[3][sum >> 24] ^ tables[2][(sum >> 16) & 0xff] ^ tables[1][(sum >> 8) & 0xff] ^ tables[0][sum & 0xff];
    }
    for (; byte != end; ++byte)
        sum = (sum << 8) ^ tables[0][(sum >> 24) ^ *byte];
    return sum;
}

} // namespace

OggPackets::OggPackets(const FileBytes &file)
    : m_file(file)
{
}

bool OggPackets::next(OggPacket &packet)
{
    while (m_nextReady == m_ready.size()) {
        m_ready.clear();
        m_nextReady = 0;
        if (!readPage())
            return false;
    }
    packet = std::move(m_ready[m_nextReady++]);
    return true;
}

QByteArray OggPackets::bytesAt(qint64 offset, int length)
{
    if (offset < m_windowStart || offset + length > m_windowStart + m_window.size()) {
        m_window = m_file.read(offset, windowBytes);
        m_windowStart = offset;
    }
    const auto place = static_cast<int>(offset - m_windowStart);
    return QByteArray::fromRawData(m_window.constData() + place, std::min(length, m_window.size() - place));
}

bool OggPackets::readPage()
{
    constexpr int mostPageBytes = pageHeaderBytes + 255 + 255 * 255;
    const QByteArray start = bytesAt(m_place, mostPageBytes); // valid until the next call
    if (start.size() < pageHeaderBytes || !start.startsWith("OggS"))
        return false;
    const int segments = static_cast<uchar>(start.at(pageHeaderBytes - 1));
    const QByteArray lengths = start.mid(pageHeaderBytes, segments);
    int contentBytes = 0;
    for (const char length : lengths)
        contentBytes += static_cast<uchar>(length);
    const int pageBytes = pageHeaderBytes + segments + contentBytes;
    if (lengths.size() < segments || start.size() < pageBytes)
        return false;
    OggPacket ofPage;
    ofPage.granule = qFromLittleEndian<qint64>(start.constData() + 6);
    ofPage.stream = qFromLittleEndian<quint32>(start.constData() + 14);
    checkPage(start.left(pageBytes), ofPage.stream);
    addSegments(lengths, start.constData() + pageHeaderBytes + segments, ofPage);
    m_place += pageBytes;
    return true;
}

void OggPackets::checkPage(const QByteArray &page, quint32 stream)
{
    const auto number = qFromLittleEndian<quint32>(page.constData() + 18);
    const auto expected = m_nextNumber.constFind(stream);
    const bool follows = expected == m_nextNumber.constEnd() || *expected == number;
    m_nextNumber[stream] = number + 1;
    QByteArray unsummed = page;
    unsummed.replace(checksumPlace, 4, QByteArray(4, '\0'));
    const auto stored = qFromLittleEndian<quint32>(page.constData() + checksumPlace);
    m_faults += follows && checksum(unsummed) == stored ? 0 : 1;
}

void OggPackets::addSegments(const QByteArray &lengths, const char *content, const OggPacket &ofPage)
{
    QByteArray &unfinished = m_unfinished[ofPage.stream];
    for (const char segment : lengths) {
        const int length = static_cast<uchar>(segment);
        unfinished.append(content, length);
        content += length;
        if (length < 255) { // the packet ends here
            m_ready.append({ofPage.stream, std::move(unfinished), -1});
            unfinished = QByteArray();
        }
    }
    if (!m_ready.isEmpty())
        m_ready.last().granule = ofPage.granule;
}

} // namespace tags
