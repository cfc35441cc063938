// SPDX-License-Identifier: MIT
#include "support/TestTable.h"
#include "tags/MediaFileTags.h"
#include "tags/SafeSave.h"
#include "tags/SaveJournal.h"
#include "tags/SavesMending.h"
#include "tags/SongFiles.h"
#include "tags/TagUpdate.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTest>

#include <array>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

using tags::UpdateResult;

namespace {

const tags::SongTexts newLyrics{{}, {}, "new words\nof a song"_s};

struct Place
{
    SongFiles files;
    QString song = files.copy("plain-v24.mp3"_s);
    QByteArray native = QFile::encodeName(song);
    QString data = files.path("data"_s);

    [[nodiscard]] QStringList entries() const
    {
        return QDir(QFileInfo(song).path()).entryList(QDir::Files | QDir::Hidden);
    }
};

ino_t inodeOf(const QByteArray &path)
{
    struct stat status = {};
    return ::lstat(path.constData(), &status) == 0 ? status.st_ino : 0;
}

bool hasNewLyrics(const QString &path)
{
    MediaFileTags tags;
    return tags.read(path) && tags.value("lyrics"_s).startsWith(QLatin1String("new words"));
}

// As before a save in place.
void rescue(const QString &song, const QString &changed, const QString &data)
{
    const int from = ::open(QFile::encodeName(song).constData(), O_RDWR | O_CLOEXEC);
    const int to = ::open(QFile::encodeName(changed).constData(), O_RDONLY | O_CLOEXEC);
    QCOMPARE(tags::SaveJournal(data).rescue(QFile::encodeName(song), from, to), 0);
    ::close(from);
    ::close(to);
}

QByteArray attribute(const QByteArray &path, const char *name)
{
    std::array<char, 200> value{};
    const ssize_t size = ::getxattr(path.constData(), name, value.data(), value.size());
    return {value.data(), static_cast<int>(size < 0 ? 0 : size)};
}

} // namespace

// What becomes of the file itself when its tags are saved, and of the files that a save needs.
class tst_SafeSave : public QObject
{
    Q_OBJECT

private slots:
    void theFileStaysTheUsers_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("link");
        addRow("shared with a group, behind a relative link", 0664, "plain-v24.mp3");
        addRow("private, with an odd bit, where new files are shared", 01600, QString());
    }

    void theFileStaysTheUsers()
    {
        QFETCH(int, mode);
        QFETCH(QString, link);
        const Place place;
        // An access list that lets one more user read, as the kernel stores it.
        const QByteArray list =
            QByteArray::fromHex("0200000001000600ffffffff02000400feff000004000400ffffffff10000600ffffffff"
                                "20000000ffffffff");
        const bool withList =
            mode == 0664 && ::setxattr(place.native.constData(), "system.posix_acl_access", list.constData(),
                                       static_cast<std::size_t>(list.size()), 0) == 0;
        // And one that the directory gives to new files.
        const QByteArray directory = QFile::encodeName(QFileInfo(place.song).path());
        if (mode == 01600)
            (void)::setxattr(directory.constData(), "system.posix_acl_default", list.constData(),
                             static_cast<std::size_t>(list.size()), 0);
        QCOMPARE(::setxattr(place.native.constData(), "user.rating", "five", 4, 0), 0);
        QCOMPARE(::chmod(place.native.constData(), static_cast<mode_t>(mode)), 0);
        const bool isRoot = ::geteuid() == 0;
        if (isRoot)
            QCOMPARE(::chown(place.native.constData(), 1234, 4321), 0);
        const QByteArray listBefore = attribute(place.native, "system.posix_acl_access");
        QVERIFY(!withList || !listBefore.isEmpty());
        QString path = place.song;
        if (!link.isEmpty()) {
            path = place.files.path("link.mp3"_s);
            QVERIFY(QFile::link(link, path));
        }

        QCOMPARE(tags::updateTags(path, newLyrics, place.data), UpdateResult::Saved);
        QVERIFY(hasNewLyrics(place.song));
        QCOMPARE(QFileInfo(path).isSymLink(), !link.isEmpty());
        struct stat status = {};
        QCOMPARE(::stat(place.native.constData(), &status), 0);
        QCOMPARE(static_cast<int>(status.st_mode & 07777), mode);
        QVERIFY(!isRoot || (status.st_uid == 1234 && status.st_gid == 4321));
        QCOMPARE(attribute(place.native, "user.rating"), QByteArray("five"));
        QCOMPARE(attribute(place.native, "system.posix_acl_access"), listBefore);
        QCOMPARE(place.entries().size(), link.isEmpty() ? 1 : 2);
    }

    void oddPlacesAreSavedInPlace_data()
    {
        QTest::addColumn<bool>("hardLink");
        QTest::addColumn<bool>("withFolder");
        addRow("hard links stay linked", true, true);
        addRow("a directory that takes no files", false, true);
        addRow("without a net nothing is begun", true, false);
    }

    void oddPlacesAreSavedInPlace()
    {
        QFETCH(bool, hardLink);
        QFETCH(bool, withFolder);
        const Place place;
        const QString other = place.files.path("other.mp3"_s);
        const QByteArray directory = QFile::encodeName(QFileInfo(place.song).path());
        QCOMPARE(::chmod(place.native.constData(), 0666), 0);
        QVERIFY(QDir().mkpath(place.data) && ::chmod(QFile::encodeName(place.data).constData(), 0777) == 0);
        if (hardLink)
            QCOMPARE(::link(place.native.constData(), QFile::encodeName(other).constData()), 0);
        else
            QCOMPARE(::chmod(directory.constData(), 0555), 0);
        const ino_t inode = inodeOf(place.native);
        const QByteArray before = SongFiles::bytes(place.song);
        const UpdateResult result = [&] {
            const AsOrdinaryUser user;
            return tags::updateTags(place.song, newLyrics, withFolder ? place.data : QString());
        }();
        ::chmod(directory.constData(), 0777);
        QCOMPARE(result, withFolder ? UpdateResult::Saved : UpdateResult::NoRoom);
        QCOMPARE(hasNewLyrics(place.song), withFolder);
        QCOMPARE(inodeOf(place.native), inode);
        if (hardLink)
            QCOMPARE(SongFiles::bytes(other), SongFiles::bytes(place.song));
        if (!withFolder)
            QCOMPARE(SongFiles::bytes(place.song), before);
        QVERIFY(!withFolder || QDir(place.data + "/rescue"_s).isEmpty(QDir::Files | QDir::Hidden));
    }

    void aFailedChangeLeavesNothing_data()
    {
        QTest::addColumn<int>("fault");
        addRow("the change fails", 0);
        addRow("the song is edited meanwhile", 1);
        addRow("the song is replaced meanwhile", 2);
        addRow("the song goes meanwhile", 3);
    }

    void aFailedChangeLeavesNothing()
    {
        QFETCH(int, fault);
        for (const bool hardLink : {false, true}) {
            const Place place;
            const QString other = place.files.path("other"_s);
            if (hardLink)
                QCOMPARE(::link(place.native.constData(), QFile::encodeName(other).constData()), 0);
            const int original = ::open(place.native.constData(), O_RDONLY | O_CLOEXEC);
            tags::SafeSave save(place.native, original, tags::FileIdentity::of(original), place.data);
            const auto change = [&](int copy) {
                const bool isWritten = ::pwrite(copy, "cut off", 7, 0) == 7;
                QFile song(place.song);
                if (fault == 1 && song.open(QIODevice::ReadWrite))
                    song.write("foreign edit");
                else if (fault >= 2)
                    song.remove();
                if (fault == 2)
                    (void)place.files.write(QFileInfo(place.song).fileName(), "foreign file");
                return fault == 0 || !isWritten ? UpdateResult::TagsNotKept : UpdateResult::Saved;
            };
            QCOMPARE(save.run(change, 1000), fault == 0 ? UpdateResult::TagsNotKept : UpdateResult::ChangedMeanwhile);
            ::close(original);
            const int left = (fault == 3 ? 0 : 1) + (hardLink ? 1 : 0);
            QCOMPARE(place.entries().size(), left);
            QVERIFY(fault == 3 || !SongFiles::bytes(place.song).startsWith("cut off"));
            QVERIFY(fault != 1 || SongFiles::bytes(place.song).startsWith("foreign edit"));
            QVERIFY(QDir(place.data + "/copies"_s).isEmpty());
        }
    }

    void mendingRemovesOnlyOwnCopies()
    {
        const Place place;
        const QString own = place.files.write(".versewell-abc.part"_s, "left over");
        const QString alike = place.files.write(".versewell-def.part"_s, "not noted");
        tags::SaveJournal journal(place.data);
        journal.noteCopy(QFile::encodeName(own));
        journal.noteCopy(place.native); // as a damaged journal might say
        const QString stick = place.files.path("stick"_s);
        const QString onStick = stick + "/.versewell-ghi.part"_s;
        journal.noteCopy(QFile::encodeName(onStick));
        QVERIFY(tags::SaveJournal(place.data).mend().isEmpty());
        QVERIFY(!QFile::exists(own));
        QVERIFY(QDir().mkdir(stick)); // it is plugged in again
        (void)place.files.write("stick/.versewell-ghi.part"_s, "left over");
        QVERIFY(tags::SaveJournal(place.data).mend().isEmpty());
        QVERIFY(!QFile::exists(onStick));
        QVERIFY(QFile::exists(alike) && QFile::exists(place.song));
        QVERIFY(QDir(place.data + "/copies"_s).isEmpty());
    }

    void aSaveThatWasCutOffIsUndone_data()
    {
        QTest::addColumn<QByteArray>("found");
        QTest::addColumn<QString>("outcome");
        const QByteArray half = QByteArray(512, 'n') + QByteArray(1488, 'o');
        addRow("half written", half, "restored");
        addRow("half written, with room for the rest", half + QByteArray(500, '\0'), "restored");
        addRow("undone, with the end of what was new still behind it", QByteArray(2000, 'o') + QByteArray(500, 'n'),
               "restored");
        addRow("wholly written", QByteArray(2500, 'n'), "whole");
        addRow("not begun", QByteArray(2000, 'o'), "whole");
        addRow("retagged by another program, equally long", QByteArray("A tagger's") + QByteArray(1990, 'o'), "kept");
        addRow("retagged, a byte in what is new", QByteArray(2499, 'n') + 'x', "kept");
        addRow("another file", QByteArray("another file"), "kept");
    }

    void aSaveThatWasCutOffIsUndone()
    {
        QFETCH(QByteArray, found);
        QFETCH(QString, outcome);
        const SongFiles files;
        const QString data = files.path("data"_s);
        const QByteArray before(2000, 'o');
        const QString song = files.write("song.mp3"_s, before);
        const QString changed = files.write("changed"_s, QByteArray(2500, 'n'));
        rescue(song, changed, data);
        QVERIFY(QFile::remove(changed)); // as the working copy
        (void)files.write("song.mp3"_s, found);

        const tags::MendedSaves mended = tags::SaveJournal(data).mend();
        QCOMPARE(mended.restored, outcome == QLatin1String("restored") ? QStringList{song} : QStringList());
        QCOMPARE(SongFiles::bytes(song), outcome == QLatin1String("restored") ? before : found);
        QCOMPARE(mended.kept.size(), outcome == QLatin1String("kept") ? 1 : 0);
        for (const QString &kept : mended.kept)
            QCOMPARE(SongFiles::bytes(kept), before);
        QVERIFY(mended.waiting.isEmpty());
        QVERIFY(tags::SaveJournal(data).mend().isEmpty()); // said once
        QCOMPARE(QDir(data + "/rescue"_s).entryList(QDir::Files).size(), mended.kept.size());
    }

    void aSongOnAStickWaits()
    {
        const Place place;
        const QString away = place.files.path("away"_s);
        const QByteArray before = SongFiles::bytes(place.song);
        const QString changed = place.files.write("changed"_s, "new" + before);
        rescue(place.song, changed, place.data);
        (void)place.files.write(QFileInfo(place.song).fileName(), ("new" + before).left(512) + before.mid(512));
        QVERIFY(QFile::rename(place.song, away));
        const QString other = place.files.path("other.mp3"_s);
        QCOMPARE(::link(QFile::encodeName(away).constData(), QFile::encodeName(other).constData()), 0);

        const tags::MendedSaves mended = tags::SaveJournal(place.data).mend();
        QCOMPARE(mended.waiting, QStringList{place.song});
        QCOMPARE(SongFiles::bytes(mended.whole.value(0)), before);
        QCOMPARE(tags::updateTags(other, newLyrics, place.data), UpdateResult::AwaitsRestoring);
        tags::SavesMending mending(place.data); // while the program starts
        const QStringList underWay = mending.result().underWay;
        QVERIFY(mending.isDone() || underWay == QStringList{place.song});
        QSignalSpy progressed(&mending, &tags::SavesMending::progressed);
        QTRY_COMPARE(progressed.count(), 1);
        QVERIFY(mending.isDone() && mending.result().underWay.isEmpty());
        QCOMPARE(mending.result().waiting, QStringList{place.song});
        QVERIFY(QFile::rename(away, place.song));
        // What is half written must not take the place of what was rescued.
        QCOMPARE(tags::updateTags(place.song, newLyrics, place.data), UpdateResult::AwaitsRestoring);
        QCOMPARE(tags::updateTags(place.song, {}, place.data), UpdateResult::AwaitsRestoring); // says nothing new
        QCOMPARE(tags::SaveJournal(place.data).mend().restored, QStringList{place.song});
        QCOMPARE(SongFiles::bytes(place.song), before);
    }
};

QTEST_GUILESS_MAIN(tst_SafeSave)
#include "tst_safesave.moc"
