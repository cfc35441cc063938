// SPDX-License-Identifier: MIT
#include "settings/SettingsCipher.h"
#include "support/TestTable.h"

#include <QSet>
#include <QTest>
#include <QtEndian>

Q_DECLARE_METATYPE(SettingsCipher::CompressionMode)
Q_DECLARE_METATYPE(SettingsCipher::IntegrityProtectionMode)
Q_DECLARE_METATYPE(SettingsCipher::Error)

namespace {

constexpr quint64 key = 0x3d81c5a27e90b46f;
constexpr int mebibyte = 1024 * 1024;

using Compression = SettingsCipher::CompressionMode;
using Protection = SettingsCipher::IntegrityProtectionMode;
using Error = SettingsCipher::Error;

QByteArray fromText(const QByteArray &base64)
{
    return QByteArray::fromBase64(base64);
}

// The cipher string as it would be with the random byte of another one: a change of that byte goes through the whole
// chain unchanged.
QByteArray withRandomByteOf(const QByteArray &other, QByteArray cipher)
{
    const auto change = static_cast<char>(cipher.at(2) ^ other.at(2));
    for (int i = 2; i < cipher.size(); ++i)
        cipher[i] = static_cast<char>(cipher.at(i) ^ change);
    return cipher;
}

// A cipher string that says of this body that it is compressed.
QByteArray claimingCompression(const QByteArray &body)
{
    SettingsCipher cipher(key);
    cipher.setCompressionMode(SettingsCipher::CompressionNever);
    QByteArray result = cipher.encryptToByteArray(body);
    result[1] = static_cast<char>(result.at(1) | 0x01);
    return result;
}

QByteArray withClaimedLength(QByteArray compressed, quint32 length)
{
    qToBigEndian(length, compressed.data());
    return compressed;
}

} // namespace

class tst_SettingsCipher : public QObject
{
    Q_OBJECT

private slots:
    void fixedVectorsHoldInBothDirections_data()
    {
        QTest::addColumn<quint64>("usedKey");
        addTextColumns("plain", "text");
        QTest::addColumn<Compression>("compression");
        QTest::addColumn<Protection>("protection");
        const auto row = [](const char *name, const QString &plain, const char *text,
                            Compression compression = SettingsCipher::CompressionAuto,
                            Protection protection = SettingsCipher::ProtectionChecksum, quint64 usedKey = key) {
            addRow(name, usedKey, plain, text, compression, protection);
        };
        const auto automatic = SettingsCipher::CompressionAuto;
        const QString word = "swordfish"_s;
        const QString repeated(64, QLatin1Char('a'));
        row("an empty text", {}, "AwI1gRE=");
        row("a word", word, "AwJvxEdKnzXGn5ZLqL4=");
        row("letters of two, three and four bytes", "päss ф 𝄞"_s, "AwKQa5mX9pdlK2QBFUsZQUTn");
        row("a NUL inside", "a\0b"_s, "AwJmC9LNb8g=");
        row("no protection", word, "AwB4v1hJmTjfi5dL", automatic, SettingsCipher::ProtectionNone);
        row("a hash", word, "AwTvFNO1CgUp/RLzPG4qmkfelNBGYHzKPG5zo1VCkz4=", SettingsCipher::CompressionNever,
            SettingsCipher::ProtectionHash);
        row("compressed as it is shorter", repeated, "AwNcBHgGpGGg5VCvc6kHwkNqiCT1");
        row("compressed, with a hash", repeated, "AwVcyvYsvu/CgFmEsWwmdBCEL88JjzL3dktkqOLXOVjV6IcnOly/",
            SettingsCipher::CompressionAlways, SettingsCipher::ProtectionHash);
        row("another key", word, "AwJDXE88SyRWMlU8Tyc=", automatic, SettingsCipher::ProtectionChecksum, 1);
    }

    void fixedVectorsHoldInBothDirections()
    {
        QFETCH(quint64, usedKey);
        QFETCH(QString, plain);
        QFETCH(Compression, compression);
        QFETCH(Protection, protection);
        QFETCH(QString, text);
        const QByteArray expected = QByteArray::fromBase64(text.toLatin1());
        SettingsCipher cipher;
        cipher.setKey(usedKey);
        QCOMPARE(cipher.decryptToString(text), plain);
        QCOMPARE(cipher.lastError(), SettingsCipher::ErrorNoError);
        cipher.setCompressionMode(compression);
        cipher.setIntegrityProtectionMode(protection);
        QCOMPARE(withRandomByteOf(expected, fromText(cipher.encryptToString(plain).toLatin1())), expected);
    }

    void equalTextsGiveDifferentCiphers()
    {
        QSet<QString> ciphers;
        for (int i = 0; i < 64; ++i)
            ciphers.insert(SettingsCipher(key).encryptToString("swordfish"_s));
        QVERIFY2(ciphers.size() > 16, qPrintable(QString::number(ciphers.size())));
    }

    // Of 0 to 30 bytes; those that are too short to be anything leave the last error as it was.
    void aCutCipherIsHarmless()
    {
        const QByteArray whole = fromText("AwTvFNO1CgUp/RLzPG4qmkfelNBGYHzKPG5zo1VCkz4=");
        QCOMPARE(whole.size(), 32);
        for (int length = 0; length <= 30; ++length) {
            SettingsCipher cipher(key);
            QCOMPARE(cipher.decryptToByteArray(whole.left(length)), QByteArray());
            QCOMPARE(cipher.lastError(),
                     length < 3 ? SettingsCipher::ErrorNoError : SettingsCipher::ErrorIntegrityFailed);
            QTest::ignoreMessage(QtWarningMsg, "Invalid version or not a cyphertext.");
            QCOMPARE(cipher.decryptToByteArray(QByteArray(3, 'x')), QByteArray());
            QCOMPARE(cipher.decryptToByteArray(whole.left(length)), QByteArray());
            QCOMPARE(cipher.lastError(),
                     length < 3 ? SettingsCipher::ErrorUnknownVersion : SettingsCipher::ErrorIntegrityFailed);
        }
    }

    void aFlippedBitIsNoticed()
    {
        for (const char *text : {"AwJvxEdKnzXGn5ZLqL4=", "AwTvFNO1CgUp/RLzPG4qmkfelNBGYHzKPG5zo1VCkz4="}) {
            const QByteArray whole = fromText(text);
            for (int bit = 0; bit < whole.size() * 8; ++bit) {
                const int position = bit / 8;
                if (position == 1)
                    continue; // the flags, which have their own table
                QByteArray flipped = whole;
                flipped[position] = static_cast<char>(flipped.at(position) ^ (1 << (bit % 8)));
                SettingsCipher cipher(key);
                if (position == 0)
                    QTest::ignoreMessage(QtWarningMsg, "Invalid version or not a cyphertext.");
                QVERIFY2(cipher.decryptToByteArray(flipped).isEmpty(), qPrintable(QString::number(bit)));
                QCOMPARE(cipher.lastError(),
                         position == 0 ? SettingsCipher::ErrorUnknownVersion : SettingsCipher::ErrorIntegrityFailed);
            }
        }
    }

    void flagsDecideHowTheBodyIsRead_data()
    {
        QTest::addColumn<QByteArray>("cipher");
        QTest::addColumn<char>("flags");
        QTest::addColumn<QByteArray>("expected");
        QTest::addColumn<Error>("error");
        const QByteArray word = fromText("AwJvxEdKnzXGn5ZLqL4=");
        const QByteArray both = fromText("AwZooY/xUpUXLkT2YRe8c/nIqhCP4VKFF1lBmnhipgr4rQ==");
        QByteArray wrongHash;
        for (char byte = 0; byte < 20; ++byte)
            wrongHash.append(byte);
        const auto none = SettingsCipher::ErrorNoError;
        const auto failed = SettingsCipher::ErrorIntegrityFailed;
        addRow("both integrity flags: the checksum alone counts", both, char(6), wrongHash + "swordfish", none);
        addRow("the same as a hash", both, char(4), QByteArray(), failed);
        addRow("too short for a hash", word, char(4), QByteArray(), failed);
        addRow("bits without a meaning", word, char(0x7a), QByteArray("swordfish"), none);
        addRow("a text that is no zlib data", word, char(3), QByteArray(), none);
    }

    void flagsDecideHowTheBodyIsRead()
    {
        QFETCH(QByteArray, cipher);
        QFETCH(char, flags);
        cipher[1] = flags;
        SettingsCipher reader(key);
        QTEST(reader.decryptToByteArray(cipher), "expected");
        QTEST(reader.lastError(), "error");
    }

    void hostileCompressedBodiesAreBounded_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QByteArray>("expected");
        const QByteArray plain(1000, 'a');
        const QByteArray good = qCompress(plain, 9);
        addRow("a length and nothing else", QByteArray(4, '\0'), QByteArray());
        addRow("no zlib data", withClaimedLength(QByteArray(100, 'a'), 1000), QByteArray());
        addRow("cut zlib data", good.left(good.size() - 1), QByteArray());
        addRow("claims too much, but not too much to be had", withClaimedLength(good, mebibyte), plain);
        // Whoever believes the length allocates it, and then finds the text; so 4 GiB, which nobody can, show nothing.
        addRow("claims 1 GiB", withClaimedLength(good, 1024 * mebibyte), QByteArray());
        addRow("claims little and becomes 64 MiB", withClaimedLength(qCompress(QByteArray(64 * mebibyte, 'a'), 9), 10),
               QByteArray());
    }

    void hostileCompressedBodiesAreBounded()
    {
        QFETCH(QByteArray, body);
        SettingsCipher cipher(key);
        QTEST(cipher.decryptToByteArray(claimingCompression(body)), "expected");
        QCOMPARE(cipher.lastError(), SettingsCipher::ErrorNoError);
    }

    void whatCannotBeReadGivesNothing()
    {
        SettingsCipher keyless;
        QTest::ignoreMessage(QtWarningMsg, "No key set.");
        QCOMPARE(keyless.encryptToString("swordfish"_s), QString());
        QCOMPARE(keyless.lastError(), SettingsCipher::ErrorNoKeySet);
        QTest::ignoreMessage(QtWarningMsg, "No key set.");
        QCOMPARE(keyless.decryptToString("AwJvxEdKnzXGn5ZLqL4="_s), QString());
        SettingsCipher cipher(key);
        QCOMPARE(cipher.decryptToString("!\"§ ,;"_s), QString());
        QCOMPARE(cipher.lastError(), SettingsCipher::ErrorNoError);
        QTest::ignoreMessage(QtWarningMsg, "Invalid version or not a cyphertext.");
        QCOMPARE(cipher.decryptToString("BAJvxEdKnzXGn5ZLqL4="_s), QString()); // the next version
        QCOMPARE(cipher.lastError(), SettingsCipher::ErrorUnknownVersion);
    }
};

QTEST_GUILESS_MAIN(tst_SettingsCipher)
#include "tst_settingscipher.moc"
