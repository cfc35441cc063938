// SPDX-License-Identifier: MIT
#include "tags/SongLayout.h"

#include <taglib/id3v1genres.h>

#include <QByteArrayList>
#include <QtEndian>

#include <algorithm>

namespace tags {

namespace {

// ISO/IEC 14496-12; the list of tags is described in the QuickTime file format.
struct Atom
{
    QByteArray name;
    qint64 offset = 0;
    qint64 content = 0;
    qint64 end = 0;
};

constexpr int deepest = 12; // an ordinary file nests six

// Of items that programs store in several ways with one meaning, the way in which TagLib stores them: whole numbers as
// such and not as bytes of no type, a disc without the two bytes that only a track has behind it, and the number of a
// genre as its name.
TagItem alikeItem(const QByteArray &name, QByteArray value)
{
    constexpr int dataHeaderBytes = 16; // size, "data", type, locale
    const QByteArray noType(4, '\0');
    const QByteArray wholeNumber("\0\0\0\x15", 4);
    const QByteArray text("\0\0\0\x01", 4);
    const bool isSingle = value.size() > dataHeaderBytes && value.mid(4, 4) == "data" &&
                          qFromBigEndian<qint32>(value.constData()) == value.size();
    const QByteArray content = value.mid(dataHeaderBytes);
    if (!isSingle)
        return {"MP4/" + name, value};
    if ((name == "tmpo" || name == "cpil") && value.mid(8, 4) == noType)
        value.replace(8, 4, wholeNumber);
    if (name == "disk" && content.size() == 8 && content.endsWith(QByteArray(2, '\0')))
        value = QByteArray("\0\0\0\x16", 4) + value.mid(4, value.size() - 6);
    if (name == "gnre" && content.size() == 2) {
        const TagLib::String genre = TagLib::ID3v1::genre(qFromBigEndian<quint16>(content.constData()) - 1);
        const QByteArray known = QByteArray::fromStdString(genre.to8Bit(true));
        if (!known.isEmpty()) {
            QByteArray size(4, '\0');
            qToBigEndian(dataHeaderBytes + known.size(), size.data());
            return {"MP4/" + QByteArray::fromHex("a9") + "gen", size + "data" + text + noType + known};
        }
    }
    return {"MP4/" + name, value};
}

class Mp4Walk
{
public:
    Mp4Walk(const FileBytes &file, SongLayout &layout)
        : m_file(file)
        , m_layout(layout)
    {
    }

    bool readAtoms(qint64 place, qint64 end, const QByteArray &path, int depth)
    {
        while (place < end) {
            const Atom atom = atomAt(place, end);
            if (atom.end <= place || atom.end > end)
                // What follows the last atom of user data may be four zeros.
                return end - place < 8 && m_file.read(place, end - place).count('\0') == end - place;
            if (!readAtom(atom, path, depth))
                return false;
            place = atom.end;
        }
        return true;
    }

private:
    [[nodiscard]] Atom atomAt(qint64 place, qint64 end) const
    {
        const quint32 size = m_file.bigEndian32(place);
        Atom atom{m_file.read(place + 4, 4), place, place + 8, place + size};
        if (size == 1) {
            atom.content = place + 16;
            atom.end = place + static_cast<qint64>(std::min<quint64>(m_file.bigEndian64(place + 8), quint64(1) << 62));
        } else if (size == 0) {
            atom.end = end;
        }
        if (atom.content > end || atom.end < atom.content)
            atom.end = place; // damaged
        return atom;
    }

    bool readAtom(const Atom &atom, const QByteArray &path, int depth)
    {
        const QByteArray here = path + atom.name;
        if (atom.name == "free" || atom.name == "skip")
            return true;
        if (here == "moof" || here == "moof/traf")
            return readAtoms(atom.content, atom.end, here + '/', depth + 1) && keepBytes(atom.offset, atom.content);
        if (path.startsWith("moof/"))
            return here == "moof/traf/tfhd" ? readFragmentHeader(atom) : keepBytes(atom.offset, atom.end);
        if (here == "mfra")
            return readAtoms(atom.content, atom.end, here + '/', depth + 1);
        if (here == "mfra/tfra")
            return readFragmentIndex(atom);
        if (path.isEmpty() && atom.name != "moov") {
            if (atom.name == "mdat")
                m_layout.audio.append({atom.offset, atom.end - atom.offset});
            else
                addItem(here, atom.offset, atom.end);
            return true;
        }
        if (here == "moov/udta/meta/ilst")
            return readTagList(atom);
        static const QByteArrayList containers{"moov", "trak", "mdia", "minf", "stbl", "udta"};
        if (containers.contains(atom.name))
            return depth < deepest && readAtoms(atom.content, atom.end, here + '/', depth + 1);
        if (here == "moov/udta/meta") // a full atom: four bytes of version and flags first
            return readAtoms(atom.content + 4, atom.end, here + '/', depth + 1);
        if (atom.name == "stco" || atom.name == "co64")
            return readOffsets(atom);
        addItem(here, atom.content, atom.end);
        return true;
    }

    bool readTagList(const Atom &list)
    {
        for (qint64 place = list.content; place < list.end;) {
            const Atom item = atomAt(place, list.end);
            if (item.end <= place || item.end > list.end)
                return false;
            const ByteRange content{item.content, item.end - item.content};
            m_layout.items.append(alikeItem(item.name, m_file.read(content.offset, content.length)));
            m_layout.listItems.append(ListItem{item.name, content, m_layout.items.last()});
            place = item.end;
        }
        return true;
    }

    bool readOffsets(const Atom &atom)
    {
        const qint64 width = atom.name == "stco" ? 4 : 8;
        const quint32 count = m_file.bigEndian32(atom.content + 4);
        const QByteArray table = m_file.read(atom.content + 8, count * width);
        if (table.size() != count * width)
            return false;
        for (qint64 i = 0; i < count; ++i) {
            const char *entry = table.constData() + i * width;
            m_layout.audioOffsets.append(AudioOffset{width == 4 ? qFromBigEndian<quint32>(entry)
                                                                : static_cast<qint64>(qFromBigEndian<quint64>(entry)),
                                                     {atom.content + 8 + i * width, width}});
        }
        return true;
    }

    bool keepBytes(qint64 start, qint64 end)
    {
        m_layout.audio.append(ByteRange{start, end - start});
        return true;
    }

    // Of a fragment, whose samples may be counted from a place in the file.
    bool readFragmentHeader(const Atom &atom)
    {
        constexpr quint32 hasBase = 1;
        if ((m_file.bigEndian32(atom.content) & hasBase) == 0)
            return keepBytes(atom.offset, atom.end);
        const ByteRange base{atom.content + 8, 8}; // behind the flags and the number of the track
        if (base.end() > atom.end)
            return false;
        m_layout.audioOffsets.append(AudioOffset{static_cast<qint64>(m_file.bigEndian64(base.offset)), base});
        return keepBytes(atom.offset, base.offset) && keepBytes(base.end(), atom.end);
    }

    // Entries of a time, the place of a fragment, and three numbers of one to four bytes each.
    bool readFragmentIndex(const Atom &atom)
    {
        constexpr int headBytes = 16;
        const qint64 width = m_file.read(atom.content, 1) == QByteArray(1, '\0') ? 4 : 8;
        const quint32 lengths = m_file.bigEndian32(atom.content + 8);
        const quint32 count = m_file.bigEndian32(atom.content + 12);
        const qint64 entryBytes = 2 * width + 3 + (lengths & 3U) + ((lengths >> 2) & 3U) + ((lengths >> 4) & 3U);
        if (atom.content + headBytes + count * entryBytes > atom.end)
            return false;
        qint64 kept = atom.offset;
        for (qint64 i = 0; i < count; ++i) {
            const ByteRange place{atom.content + headBytes + i * entryBytes + width, width};
            m_layout.audioOffsets.append(AudioOffset{width == 4 ? m_file.bigEndian32(place.offset)
                                                                : static_cast<qint64>(m_file.bigEndian64(place.offset)),
                                                     place});
            keepBytes(kept, place.offset);
            kept = place.end();
        }
        m_layout.hasFragmentIndex = true;
        return keepBytes(kept, atom.end);
    }

    void addItem(const QByteArray &key, qint64 start, qint64 end)
    {
        m_layout.items.append({"MP4/" + key, m_file.read(start, end - start)});
    }

    const FileBytes &m_file;
    SongLayout &m_layout;
};

} // namespace

bool readMp4Layout(const FileBytes &file, SongLayout &layout)
{
    return Mp4Walk(file, layout).readAtoms(0, file.size(), {}, 0) && !layout.audio.isEmpty();
}

} // namespace tags
