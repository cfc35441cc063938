// SPDX-License-Identifier: MIT
#include "support/TestTable.h"
#include "tags/CheckedFileStream.h"

#include <taglib/tbytevectorstream.h>
#include <taglib/tiostream.h>

#include <QRandomGenerator>
#include <QTemporaryFile>
#include <QTest>

#include <fcntl.h>
#include <sys/resource.h>

#include <csignal>
#include <limits>
#include <memory>

using tags::CheckedFileStream;

namespace {

TagLib::ByteVector pattern(int size, quint32 seed)
{
    QRandomGenerator random(seed);
    TagLib::ByteVector bytes(static_cast<unsigned int>(size));
    for (char &byte : bytes)
        byte = static_cast<char>(random.generate());
    return bytes;
}

TagLib::ByteVector everything(TagLib::IOStream &stream)
{
    stream.seek(0, TagLib::IOStream::Beginning);
    return stream.readBlock(static_cast<unsigned long>(stream.length()));
}

// A file of its own that vanishes with it.
class TestFile
{
public:
    explicit TestFile(const TagLib::ByteVector &content)
    {
        if (!m_file.open() || m_file.write(content.data(), content.size()) != content.size() || !m_file.flush())
            qFatal("cannot write a temporary file");
    }
    [[nodiscard]] std::unique_ptr<CheckedFileStream> open(CheckedFileStream::Access access) const
    {
        const QByteArray name = QFile::encodeName(m_file.fileName());
        return std::make_unique<CheckedFileStream>(::open(name.constData(), O_RDWR | O_CLOEXEC), name, access);
    }

private:
    QTemporaryFile m_file;
};

} // namespace

class tst_CheckedFileStream : public QObject
{
    Q_OBJECT

private slots:
    void changesAreThoseOfMemory_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<int>("growth");
        addRow("small file, small changes", 100, 60);
        addRow("around a page", 4096, 8192);
        addRow("several blocks, each move crosses them", 3 * 1024 * 1024 + 17, 4000);
        addRow("a move of more than a block", 2 * 1024 * 1024, 1536 * 1024);
    }

    // Whatever is done, the file is as a stream in memory would be; reading in between shows that nothing stale is
    // seen.
    void changesAreThoseOfMemory()
    {
        QFETCH(int, size);
        QFETCH(int, growth);
        const TagLib::ByteVector content = pattern(size, 1);
        const TestFile target(content);
        const auto file = target.open(CheckedFileStream::Access::ReadWrite);
        TagLib::ByteVectorStream memory(content);
        QRandomGenerator random(7);
        for (int round = 0; round < 60; ++round) {
            const auto place = static_cast<unsigned long>(random.bounded(static_cast<int>(memory.length()) + 1));
            const auto rest = static_cast<unsigned long>(memory.length()) - place;
            const auto replaced = std::min<unsigned long>(rest, static_cast<unsigned long>(random.bounded(growth)));
            const TagLib::ByteVector data = pattern(random.bounded(growth), static_cast<quint32>(round));
            const int kind = random.bounded(4);
            TagLib::ByteVector seen[2];
            int number = 0;
            for (TagLib::IOStream *stream : {file->stream(), static_cast<TagLib::IOStream *>(&memory)}) {
                if (kind == 0)
                    stream->insert(data, place, replaced);
                else if (kind == 1)
                    stream->removeBlock(place, replaced);
                else if (kind == 2)
                    stream->truncate(stream->length() - static_cast<long>(replaced / 8));
                stream->seek(std::min(static_cast<long>(place / 2), stream->length()), TagLib::IOStream::Beginning);
                if (kind == 3)
                    stream->writeBlock(data);
                stream->seek(-std::min(50L, stream->length()), TagLib::IOStream::End);
                seen[number++] = stream->readBlock(round % 2 == 0 ? 37 : std::numeric_limits<unsigned long>::max());
            }
            QVERIFY2(seen[0] == seen[1], qPrintable("round %1"_s.arg(round)));
            QCOMPARE(file->stream()->length(), memory.length());
        }
        QVERIFY(everything(*file->stream()) == everything(memory));
        QCOMPARE(file->error(), 0);
    }

    void theFirstErrorStays()
    {
        const TagLib::ByteVector content = pattern(100'000, 2);
        const TestFile target(content);
        const auto readOnly = target.open(CheckedFileStream::Access::Read);
        readOnly->stream()->insert(content, 0, 0);
        QCOMPARE(readOnly->error(), EBADF);
        QVERIFY(everything(*target.open(CheckedFileStream::Access::Read)->stream()) == content);

        std::signal(SIGXFSZ, SIG_IGN);
        rlimit before = {};
        QCOMPARE(::getrlimit(RLIMIT_FSIZE, &before), 0);
        const rlimit tight = {content.size(), before.rlim_max};
        QCOMPARE(::setrlimit(RLIMIT_FSIZE, &tight), 0);
        const auto file = target.open(CheckedFileStream::Access::ReadWrite);
        file->stream()->insert(pattern(10, 3), 0, 0);
        ::setrlimit(RLIMIT_FSIZE, &before);
        QCOMPARE(file->error(), EFBIG);
        file->stream()->truncate(5); // would work, but must not be done any more
        QCOMPARE(target.open(CheckedFileStream::Access::Read)->stream()->length(), static_cast<long>(content.size()));
    }

    void budgetsEndReading()
    {
        const TestFile target(pattern(50'000, 4));
        const auto file = target.open(CheckedFileStream::Access::Read);
        file->setReadBudget({10, 60'000});
        TagLib::IOStream &stream = *file->stream();
        QVERIFY(everything(stream).size() == 50'000);
        QVERIFY_EXCEPTION_THROWN(everything(stream), tags::ReadBudgetSpent);
        file->setReadBudget({10, 60'000});
        const auto loop = [&stream] {
            for (int round = 0; round < 100; ++round)
                stream.seek(0, TagLib::IOStream::Beginning);
        };
        QVERIFY_EXCEPTION_THROWN(loop(), tags::ReadBudgetSpent);
        file->liftReadBudget();
        loop();
        QVERIFY(everything(stream).size() == 50'000);
    }
};

QTEST_GUILESS_MAIN(tst_CheckedFileStream)
#include "tst_checkedfilestream.moc"
