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

using Cipher = SettingsCipher;

constexpr quint64 key = 0x3d81c5a27e90b46f;
constexpr int mebibyte = 1024 * 1024;
const QByteArray ofWord = QByteArray::fromBase64("AwJvxEdKnzXGn5ZLqL4=");
const QByteArray ofWordWithHash = QByteArray::fromBase64("AwTvFNO1CgUp/RLzPG4qmkfelNBGYHzKPG5zo1VCkz4=");

// The cipher string as it would be with the random byte of another one: a change of that byte goes through the whole
// chain unchanged.
QByteArray withRandomByteOf(const QByteArray &other, QByteArray cipher)
{
    const auto change = static_cast<char>(cipher.at(2) ^ other.at(2));
    for (int i = 2; i < cipher.size(); ++i)
        cipher[i] = static_cast<char>(cipher.at(i) ^ change);
    return cipher;
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
        addTextColumns("plain", "text");
        QTest::addColumn<Cipher::CompressionMode>("compression");
        QTest::addColumn<Cipher::IntegrityProtectionMode>("protection");
        const auto row = [](const char *name, const QString &plain, const char *text,
                            Cipher::CompressionMode compression = Cipher::CompressionAuto,
                            Cipher::IntegrityProtectionMode protection = Cipher::ProtectionChecksum) {
            addRow(name, plain, text, compression, protection);
        };
        const QString word = "swordfish"_s;
        const QString repeated(64, QLatin1Char('a'));
        row("an empty text", {}, "AwI1gRE=");
        row("a word", word, "AwJvxEdKnzXGn5ZLqL4=");
        row("letters of two, three and four bytes", "päss ф 𝄞"_s, "AwKQa5mX9pdlK2QBFUsZQUTn");
        row("a NUL inside", "a\0b"_s, "AwJmC9LNb8g=");
        row("no protection", word, "AwB4v1hJmTjfi5dL", Cipher::CompressionAuto, Cipher::ProtectionNone);
        row("a hash", word, "AwTvFNO1CgUp/RLzPG4qmkfelNBGYHzKPG5zo1VCkz4=", Cipher::CompressionNever,
            Cipher::ProtectionHash);
        row("compressed as it is shorter", repeated, "AwNcBHgGpGGg5VCvc6kHwkNqiCT1");
        row("compressed, with a hash", repeated, "AwVcyvYsvu/CgFmEsWwmdBCEL88JjzL3dktkqOLXOVjV6IcnOly/",
            Cipher::CompressionAlways, Cipher::ProtectionHash);
    }

    void fixedVectorsHoldInBothDirections()
    {
        QFETCH(QString, plain);
        QFETCH(Cipher::CompressionMode, compression);
        QFETCH(Cipher::IntegrityProtectionMode, protection);
        QFETCH(QString, text);
        const QByteArray expected = QByteArray::fromBase64(text.toLatin1());
        Cipher cipher(key);
        QCOMPARE(cipher.decryptToString(text), plain);
        QCOMPARE(cipher.lastError(), Cipher::ErrorNoError);
        cipher.setCompressionMode(compression);
        cipher.setIntegrityProtectionMode(protection);
        QCOMPARE(withRandomByteOf(expected, cipher.encryptToByteArray(plain)), expected);
    }

    void equalTextsGiveDifferentCiphers()
    {
        QSet<QString> ciphers;
        for (int i = 0; i < 64; ++i)
            ciphers.insert(Cipher(key).encryptToString("swordfish"_s));
        QVERIFY2(ciphers.size() > 16, qPrintable(QString::number(ciphers.size())));
    }

    // One that is too short to be anything leaves the last error as it was.
    void aCutCipherIsHarmless()
    {
        for (int length = 0; length < ofWordWithHash.size() - 1; ++length) {
            Cipher cipher(key);
            QTest::ignoreMessage(QtWarningMsg, "Invalid version or not a cyphertext.");
            QCOMPARE(cipher.decryptToByteArray(QByteArray("xxx")), QByteArray());
            QCOMPARE(cipher.decryptToByteArray(ofWordWithHash.left(length)), QByteArray());
            QCOMPARE(cipher.lastError(), length < 3 ? Cipher::ErrorUnknownVersion : Cipher::ErrorIntegrityFailed);
        }
    }

    void aFlippedBitIsNoticed()
    {
        for (const QByteArray &whole : {ofWord, ofWordWithHash}) {
            for (int bit = 16; bit < whole.size() * 8; ++bit) { // behind the version and the flags
                QByteArray flipped = whole;
                flipped[bit / 8] = static_cast<char>(flipped.at(bit / 8) ^ (1 << (bit % 8)));
                Cipher cipher(key);
                QVERIFY2(cipher.decryptToByteArray(flipped).isEmpty(), qPrintable(QString::number(bit)));
                QCOMPARE(cipher.lastError(), Cipher::ErrorIntegrityFailed);
            }
        }
    }

    void flagsDecideHowTheBodyIsRead_data()
    {
        QTest::addColumn<QByteArray>("cipher");
        QTest::addColumn<char>("flags");
        QTest::addColumn<QByteArray>("expected");
        QTest::addColumn<Cipher::Error>("error");
        const QByteArray both = QByteArray::fromBase64("AwZooY/xUpUXLkT2YRe8c/nIqhCP4VKFF1lBmnhipgr4rQ==");
        QByteArray wrongHash;
        for (char byte = 0; byte < 20; ++byte)
            wrongHash.append(byte);
        const auto none = Cipher::ErrorNoError;
        const auto failed = Cipher::ErrorIntegrityFailed;
        addRow("both integrity flags: the checksum alone counts", both, char(6), wrongHash + "swordfish", none);
        addRow("the same as a hash", both, char(4), QByteArray(), failed);
        addRow("too short for a hash", ofWord, char(4), QByteArray(), failed);
        addRow("bits without a meaning", ofWord, char(0x7a), QByteArray("swordfish"), none);
        addRow("a text that is no zlib data", ofWord, char(3), QByteArray(), none);
    }

    void flagsDecideHowTheBodyIsRead()
    {
        QFETCH(QByteArray, cipher);
        QFETCH(char, flags);
        cipher[1] = flags;
        Cipher reader(key);
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
        Cipher cipher(key);
        cipher.setCompressionMode(Cipher::CompressionNever);
        QByteArray claiming = cipher.encryptToByteArray(body);
        claiming[1] = static_cast<char>(claiming.at(1) | 0x01); // it says that the body is compressed
        QTEST(cipher.decryptToByteArray(claiming), "expected");
        QCOMPARE(cipher.lastError(), Cipher::ErrorNoError);
    }

    void withoutAKeyNothingIsWrittenOrRead()
    {
        Cipher keyless;
        for (int i = 0; i < 2; ++i)
            QTest::ignoreMessage(QtWarningMsg, "No key set.");
        QCOMPARE(keyless.encryptToString("swordfish"_s), QString());
        QCOMPARE(keyless.decryptToByteArray(ofWord), QByteArray());
        QCOMPARE(keyless.lastError(), Cipher::ErrorNoKeySet);
    }
};

QTEST_GUILESS_MAIN(tst_SettingsCipher)
#include "tst_settingscipher.moc"
