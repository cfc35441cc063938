// SPDX-License-Identifier: MIT
#include "support/TestTable.h"
#include "tags/SongFiles.h"
#include "tags/TagWriter.h"
#include "tags/WriterThread.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QPointer>
#include <QSemaphore>
#include <QTest>
#include <QThread>

#include <sys/stat.h>

using namespace std::chrono_literals;

namespace {

// Keeps the writer thread busy until it is released.
class BusyWriter
{
public:
    BusyWriter()
    {
        QMetaObject::invokeMethod(
            &m_writer, [this] { m_gate.acquire(); }, Qt::QueuedConnection);
    }
    ~BusyWriter()
    {
        release();
        TagWriter::waitForQueued(10s);
        QMetaObject::invokeMethod(
            &m_writer, [this, home = QThread::currentThread()] { m_writer.moveToThread(home); },
            Qt::BlockingQueuedConnection);
    }
    Q_DISABLE_COPY(BusyWriter)
    void release() { m_gate.release(); }

private:
    QSemaphore m_gate;
    TagWriter m_writer;
};

} // namespace

// The writer thread, and what is told of each write.
class tst_TagWriter : public QObject
{
    Q_OBJECT

private slots:
    void refusalsHaveAReason_data()
    {
        addTextColumns("name", "reason");
        QTest::addColumn<QByteArray>("content");
        const QByteArray text = "a list";
        addRow("vanished", "vanished.mp3", "the file is no longer there", QByteArray("(no file)"));
        addRow("FIFO", "fifo.mp3", "this is not a regular file", QByteArray());
        addRow("read-only", "plain-v24.mp3", "the file is read-only", QByteArray());
        addRow("empty", "empty.mp3", "no audio was found in the file", QByteArray(""));
        addRow("text named .mp3", "text.mp3", "no audio was found in the file", text);
        addRow("unknown extension", "text.doc", "the file cannot be opened", text);
    }

    void refusalsHaveAReason()
    {
        QFETCH(QString, name);
        QFETCH(QString, reason);
        QFETCH(QByteArray, content);
        const SongFiles files;
        const QString path = files.path(name);
        if (name == QLatin1String("fifo.mp3"))
            QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0666), 0);
        else if (name == QLatin1String("plain-v24.mp3"))
            QVERIFY(QFile::setPermissions(files.copy(name), QFile::ReadOwner | QFile::ReadOther));
        else if (name != QLatin1String("vanished.mp3"))
            QCOMPARE(::chmod(QFile::encodeName(files.write(name, content)).constData(), 0666), 0);
        {
            const AsOrdinaryUser user;
            QCOMPARE(answersTo(path, "words"_s), (QStringList{reason, "written"_s}));
        }
        QVERIFY(content.isNull() || files.read(name) == content);
        // With nothing to write the path is not even looked at.
        QCOMPARE(answersTo(path, {}), QStringList{"written"_s});
    }

    void writesAreCountedAndOrdered()
    {
        const SongFiles files;
        const QString path = files.copy("plain.ogg"_s);
        QVector<int> order;
        BusyWriter busy;
        for (quint16 id = 1; id <= 5; ++id) {
            auto *writer = new TagWriter;
            connect(writer, &TagWriter::written, this, [&order, writer](quint16 written) {
                QCOMPARE(QThread::currentThread(), QCoreApplication::instance()->thread());
                order.append(written);
                writer->deleteLater();
            });
            writer->queueWrite(QUrl::fromLocalFile(path), id, {}, {}, "version %1"_s.arg(id));
        }
        QCOMPARE(TagWriter::pendingWrites(), 5);
        busy.release();
        QVERIFY(TagWriter::waitForQueued(20s));
        QCOMPARE(TagWriter::pendingWrites(), 0);
        QCOMPARE(SongFiles::tagsOf(path).value("lyrics"_s).toVariant().toStringList(), QStringList{"version 5"_s});
        QTRY_COMPARE(order, (QVector<int>{1, 2, 3, 4, 5}));
    }

    void aWriterThatDiesIsNotWaitedFor()
    {
        BusyWriter busy;
        auto *writer = new TagWriter;
        writer->deleteLater();
        writer->queueWrite(QUrl(), 1, {}, {}, {});
        QVERIFY(!TagWriter::waitForQueued(20ms)); // nor for ever, while nothing moves
        QCOMPARE(TagWriter::pendingWrites(), 1);
        busy.release();
        QVERIFY(TagWriter::waitForQueued(20s));
    }

    void slowWritesAreWaitedFor_data()
    {
        QTest::addColumn<bool>("bytesMove");
        addRow("a little is written again and again", true);
        addRow("parts reach the disk one by one", false);
    }

    void slowWritesAreWaitedFor()
    {
        QFETCH(bool, bytesMove);
        constexpr std::chrono::milliseconds patience = 500ms;
        const SongFiles files;
        auto *writer = new TagWriter;
        // In the place of a file on a slow disk, for longer than the patience.
        auto writeSlowly = [writer, path = files.path("slow"_s), patience, bytesMove,
                            ticket = tags::WriterThread::instance().takeTicket()] {
            QFile file(path);
            const bool open = file.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
            for (QDeadlineTimer end(patience * 3); open && !end.hasExpired(); QThread::msleep(10)) {
                file.seek(0);
                if (bytesMove)
                    file.write("slow");
                else
                    tags::WriterThread::instance().noteProgress();
            }
            writer->deleteLater();
        };
        QMetaObject::invokeMethod(writer, std::move(writeSlowly), Qt::QueuedConnection);
        QVERIFY(TagWriter::waitForQueued(patience));
        QCOMPARE(TagWriter::pendingWrites(), 0);
        QCOMPARE(files.read("slow"_s), QByteArray(bytesMove ? "slow" : ""));
    }

private:
    // The reasons of a failure and "written", as they come.
    QStringList answersTo(const QString &path, const QString &lyrics)
    {
        QStringList answers;
        QPointer<TagWriter> writer = new TagWriter;
        connect(writer, &TagWriter::failed, this, [&answers](quint16 id, const QString &reason) {
            answers.append(id == 65535 ? reason : "of another id"_s);
        });
        connect(writer, &TagWriter::written, this, [&answers] { answers.append("written"_s); });
        writer->queueWrite(QUrl::fromLocalFile(path), 65535, {}, {}, lyrics);
        (void)QTest::qWaitFor([&answers] { return answers.contains("written"_s); }, 20'000);
        writer->deleteLater();
        return QTest::qWaitFor([&writer] { return writer.isNull(); }, 20'000) ? answers : QStringList();
    }
};

QTEST_GUILESS_MAIN(tst_TagWriter)
#include "tst_tagwriter.moc"
