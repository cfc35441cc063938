// SPDX-License-Identifier: MIT
#include "support/TestTable.h"
#include "tags/TagReaderProtocol.h"
#include "tags/TagText.h"

#include <QDataStream>
#include <QTest>

namespace {

using namespace tags;

ReadAnswer fullAnswer()
{
    ReadAnswer answer{7, {ReadFailure::TooMuchRead, 123, {}, QImage(50, 33, QImage::Format_RGB32)}};
    for (std::size_t i = 0; i < allKeys.size(); ++i)
        answer.summary.values[i] = "é歌😀 \t\r\n"_s + allKeys[i];
    answer.summary.thumbnail.fill(QColor(1, 2, 3));
    return answer;
}

// An answer with one thing about it as a reader of ours would never send it.
QByteArray forged(quint8 failure, qint32 duration, const QString &value, QSize size = {}, int pixelBytes = 0)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_5_15);
    stream << quint32(1) << failure << duration;
    for (std::size_t i = 0; i < allKeys.size(); ++i)
        stream << value;
    stream << size << QByteArray(pixelBytes, '\0');
    return bytes;
}

} // namespace

class tst_TagReaderProtocol : public QObject
{
    Q_OBJECT

private slots:
    void answersComeBack()
    {
        const ReadAnswer sent = fullAnswer();
        const QByteArray whole = encoded(sent).mid(4); // without the length in front
        const auto got = parseAnswer(whole);
        QVERIFY(got);
        QCOMPARE(got->number, sent.number);
        QCOMPARE(got->summary.failure, sent.summary.failure);
        QCOMPARE(got->summary.duration, sent.summary.duration);
        QVERIFY(got->summary.values == sent.summary.values);
        QCOMPARE(got->summary.thumbnail, sent.summary.thumbnail.convertToFormat(QImage::Format_ARGB32));
        // Cut anywhere, or with anything behind it, it is nothing.
        for (int size = 0; size < whole.size(); size += size < 1000 ? 1 : 97)
            QVERIFY2(!parseAnswer(whole.left(size)), qPrintable(QString::number(size)));
        QVERIFY(!parseAnswer(whole + 'x'));
    }

    void requestsComeBack()
    {
        const QString path = "/a b/\n歌.mp3"_s;
        const auto got = parseRequest(encoded(ReadRequest{9, path, false}).mid(4));
        QVERIFY(got);
        QVERIFY(got->number == 9 && got->path == path && !got->decodeCover);
        QVERIFY(encoded(ReadRequest{9, QString(maximumRequestBytes, QLatin1Char('a')), true}).isEmpty());
    }

    void nonsenseIsRefused_data()
    {
        QTest::addColumn<QByteArray>("message");
        QTest::addColumn<bool>("valid");
        addRow("as it should be", forged(0, 0, "x"_s), true);
        addRow("nothing", QByteArray(), false);
        const auto died = static_cast<quint8>(ReadFailure::Died);
        addRow("a failure that only the program finds", forged(died, 0, {}), false);
        addRow("a failure that there is not", forged(255, 0, QString()), false);
        addRow("a negative duration", forged(0, -1, QString()), false);
        addRow("a cover", forged(0, 0, QString(), QSize(50, 20), 4000), true);
        addRow("a cover too large for a row", forged(0, 0, QString(), QSize(51, 51), 51 * 51 * 4), false);
        addRow("a cover of half its pixels", forged(0, 0, QString(), QSize(50, 20), 2000), false);
        addRow("a cover without size", forged(0, 0, QString(), QSize(-1, -1), 4), false);
        addRow("a cover whose size overflows", forged(0, 0, QString(), QSize(1 << 30, 4), 0), false);
        QByteArray longText = forged(0, 0, QString());
        longText.replace(9, 4, QByteArray("\x7f\xff\xff\xf0", 4)); // two thousand million bytes of title
        addRow("a text longer than the message", longText, false);
    }

    void nonsenseIsRefused()
    {
        QFETCH(QByteArray, message);
        QTEST(parseAnswer(message).has_value(), "valid");
    }

    void textsAreBounded()
    {
        const QString text = "\x07"_s + QString(80'000, QLatin1Char('a')) + QChar(QChar::Null);
        const auto answer = parseAnswer(forged(0, 0, text));
        QVERIFY(answer);
        QCOMPARE(*valueIn(answer->summary.values, keys::title), QString(maximumFieldLength, QLatin1Char('a')));
        QCOMPARE(*valueIn(answer->summary.values, keys::lyrics), QString(80'000, QLatin1Char('a')));
    }

    void messagesAreCut()
    {
        MessageBuffer buffer(16);
        const QByteArray bytes("\0\0\0\x03one\0\0\0\0\0\0\0\x03two\0\0\0\x11", 22);
        QList<QByteArray> messages;
        for (const char byte : bytes) {
            buffer.append(&byte, 1);
            while (const auto next = buffer.next())
                messages.append(*next);
        }
        QCOMPARE(messages, (QList<QByteArray>{"one", "", "two"}));
        QVERIFY(buffer.isBroken());
        buffer.append("\0\0\0\0", 4);
        QVERIFY(!buffer.next());
    }
};

QTEST_GUILESS_MAIN(tst_TagReaderProtocol)
#include "tst_tagreaderprotocol.moc"
