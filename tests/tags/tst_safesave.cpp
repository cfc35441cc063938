// SPDX-License-Identifier: MIT
#include "support/TestTable.h"
#include "tags/MediaFileTags.h"
#include "tags/SafeSave.h"
#include "tags/SaveJournal.h"
#include "tags/SavesMending.h"
#include "tags/SongFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTest>

#include <array>
#include <optional>

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
    QByteArray folder = QFile::encodeName(files.path());
    QString data = files.dataFolder();

    [[nodiscard]] int entries() const { return QDir(files.path()).entryList(QDir::Files | QDir::Hidden).size(); }
    [[nodiscard]] bool hasNewLyrics() const
    {
        MediaFileTags tags;
        return tags.read(song) && tags.value("lyrics"_s) == QString(newLyrics.lyrics).replace("\n"_s, "\r\n"_s);
    }
    // As before a save in place.
    void rescue(const QByteArray &changed) const
    {
        const QString copy = files.write("changed"_s, changed);
        QFile from(song);
        QFile to(copy);
        QVERIFY(from.open(QIODevice::ReadOnly) && to.open(QIODevice::ReadOnly));
        QCOMPARE(tags::SaveJournal(data).rescue(native, from.handle(), to.handle()), 0);
        QVERIFY(to.remove()); // as a working copy
    }
};

struct stat statusOf(const QByteArray &path)
{
    struct stat status = {};
    ::stat(path.constData(), &status);
    return status;
}

QByteArray attribute(const QByteArray &path, const char *name)
{
    std::array<char, 200> value{};
    const ssize_t size = ::getxattr(path.constData(), name, value.data(), value.size());
    return {value.data(), static_cast<int>(size < 0 ? 0 : size)};
}

bool setAttribute(const QByteArray &path, const char *name, const QByteArray &value)
{
    return ::setxattr(path.constData(), name, value.constData(), static_cast<std::size_t>(value.size()), 0) == 0;
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
        addRow("shared with a group, behind a relative link", 0664);
        addRow("private, with an odd bit, where new files are shared", 01600);
    }

    void theFileStaysTheUsers()
    {
        QFETCH(int, mode);
        const bool isShared = mode == 0664;
        const Place place;
        // An access list that lets one more user read, as the kernel stores it; the directory may give it to new files.
        const QByteArray list =
            QByteArray::fromHex("0200000001000600ffffffff02000400feff000004000400ffffffff10000600ffffffff"
                                "20000000ffffffff");
        const bool withList = isShared && setAttribute(place.native, "system.posix_acl_access", list);
        if (!isShared)
            (void)setAttribute(place.folder, "system.posix_acl_default", list);
        QVERIFY(setAttribute(place.native, "user.rating", "five"));
        QCOMPARE(::chmod(place.native.constData(), static_cast<mode_t>(mode)), 0);
        QVERIFY(::geteuid() != 0 || ::chown(place.native.constData(), 1234, 4321) == 0);
        const struct stat before = statusOf(place.native);
        const QByteArray listBefore = attribute(place.native, "system.posix_acl_access");
        QVERIFY(!withList || !listBefore.isEmpty());
        const QString path = isShared ? place.files.path("link.mp3"_s) : place.song;
        QVERIFY(!isShared || QFile::link("plain-v24.mp3"_s, path));

        QCOMPARE(place.files.update(path, newLyrics), UpdateResult::Saved);
        QVERIFY(place.hasNewLyrics());
        QCOMPARE(QFileInfo(path).isSymLink(), isShared);
        const struct stat after = statusOf(place.native);
        QCOMPARE(static_cast<int>(after.st_mode & 07777), mode);
        QVERIFY(after.st_uid == before.st_uid && after.st_gid == before.st_gid);
        QCOMPARE(attribute(place.native, "user.rating"), QByteArray("five"));
        QCOMPARE(attribute(place.native, "system.posix_acl_access"), listBefore);
        QCOMPARE(place.entries(), isShared ? 2 : 1);
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
        QCOMPARE(::chmod(place.native.constData(), 0666), 0);
        QVERIFY(QDir().mkpath(place.data) && ::chmod(QFile::encodeName(place.data).constData(), 0777) == 0);
        if (hardLink)
            QCOMPARE(::link(place.native.constData(), (place.folder + "/other.mp3").constData()), 0);
        else
            QCOMPARE(::chmod(place.folder.constData(), 0555), 0);
        const ino_t inode = statusOf(place.native).st_ino;
        const QByteArray before = place.files.read(place.song);
        const UpdateResult result = [&] {
            std::optional<AsOrdinaryUser> user; // root may write into any directory, and give files away
            if (!hardLink)
                user.emplace();
            return tags::updateTags(place.song, newLyrics, withFolder ? place.data : QString());
        }();
        ::chmod(place.folder.constData(), 0777);
        QCOMPARE(result, withFolder ? UpdateResult::Saved : UpdateResult::SaveFailed);
        QCOMPARE(place.hasNewLyrics(), withFolder);
        QCOMPARE(place.files.read(place.song) == before, !withFolder);
        QCOMPARE(statusOf(place.native).st_ino, inode);
        QVERIFY(!hardLink || statusOf(place.folder + "/other.mp3").st_ino == inode);
        QVERIFY(!withFolder || place.files.names(place.data + "/rescue"_s).isEmpty());
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
            QVERIFY(!hardLink || ::link(place.native.constData(), (place.folder + "/other").constData()) == 0);
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
                    place.files.write(place.song, "foreign file");
                return fault == 0 || !isWritten ? UpdateResult::TagsNotKept : UpdateResult::Saved;
            };
            QCOMPARE(save.run(change, 1000), fault == 0 ? UpdateResult::TagsNotKept : UpdateResult::ChangedMeanwhile);
            ::close(original);
            QCOMPARE(place.entries(), (fault == 3 ? 0 : 1) + (hardLink ? 1 : 0));
            const std::array starts{"ID3", "foreign edit", "foreign file", "(no file)"};
            QVERIFY(place.files.read(place.song).startsWith(starts[static_cast<std::size_t>(fault)]));
            QVERIFY(place.files.names(place.data + "/copies"_s).isEmpty());
        }
    }

    void mendingRemovesOnlyOwnCopies()
    {
        const Place place;
        const QString own = place.files.write(".versewell-abc.part"_s, "left over");
        const QString alike = place.files.write(".versewell-def.part"_s, "not noted");
        const QString onStick = place.files.path("stick/.versewell-ghi.part"_s);
        tags::SaveJournal journal(place.data);
        for (const QByteArray &path :
             {QFile::encodeName(own), place.native /* as a damaged journal might say */, QFile::encodeName(onStick)})
            journal.noteCopy(path);
        QVERIFY(tags::SaveJournal(place.data).mend().isEmpty());
        QVERIFY(!QFile::exists(own));
        place.files.write(onStick, "left over"); // it is plugged in again
        QVERIFY(tags::SaveJournal(place.data).mend().isEmpty());
        QVERIFY(!QFile::exists(onStick));
        QVERIFY(QFile::exists(alike) && QFile::exists(place.song));
        QVERIFY(place.files.names(place.data + "/copies"_s).isEmpty());
    }

    void aSaveThatWasCutOffIsUndone_data()
    {
        QTest::addColumn<QByteArray>("found");
        QTest::addColumn<QString>("outcome");
        const QByteArray old(2000, 'o');
        const QByteArray half = QByteArray(512, 'n') + old.mid(512);
        addRow("half written", half, "restored");
        addRow("half written, with room for the rest", half + QByteArray(500, '\0'), "restored");
        addRow("undone, with the end of what was new still behind it", old + QByteArray(500, 'n'), "restored");
        addRow("wholly written", QByteArray(2500, 'n'), "whole");
        addRow("not begun", old, "whole");
        addRow("retagged by another program, equally long", "A tagger's" + old.mid(10), "kept");
        addRow("retagged, a byte in what is new", QByteArray(2499, 'n') + 'x', "kept");
        addRow("another file", QByteArray("another file"), "kept");
    }

    void aSaveThatWasCutOffIsUndone()
    {
        QFETCH(QByteArray, found);
        QFETCH(QString, outcome);
        const Place place;
        const QByteArray before(2000, 'o');
        place.files.write(place.song, before);
        place.rescue(QByteArray(2500, 'n'));
        place.files.write(place.song, found);

        const tags::MendedSaves mended = tags::SaveJournal(place.data).mend();
        QCOMPARE(mended.restored, outcome == QLatin1String("restored") ? QStringList{place.song} : QStringList());
        QCOMPARE(place.files.read(place.song), outcome == QLatin1String("restored") ? before : found);
        QCOMPARE(mended.kept.size(), outcome == QLatin1String("kept") ? 1 : 0);
        for (const QString &kept : mended.kept)
            QCOMPARE(place.files.read(kept), before);
        QVERIFY(mended.waiting.isEmpty());
        QVERIFY(tags::SaveJournal(place.data).mend().isEmpty()); // said once
        QCOMPARE(place.files.names(place.data + "/rescue"_s).size(), mended.kept.size());
    }

    void aSongOnAStickWaits()
    {
        const Place place;
        const QByteArray before = place.files.read(place.song);
        place.rescue("new" + before);
        place.files.write(place.song, ("new" + before).left(512) + before.mid(512));
        const QString away = place.files.path("away.mp3"_s);
        QVERIFY(QFile::rename(place.song, away));

        const tags::MendedSaves mended = tags::SaveJournal(place.data).mend();
        QCOMPARE(mended.waiting, QStringList{place.song});
        QCOMPARE(place.files.read(mended.whole.value(0)), before);
        QCOMPARE(place.files.update(away, newLyrics), UpdateResult::AwaitsRestoring);
        tags::SavesMending mending(place.data); // while the program starts
        const QStringList underWay = mending.result().underWay;
        QVERIFY(mending.isDone() || underWay == QStringList{place.song});
        QSignalSpy progressed(&mending, &tags::SavesMending::progressed);
        QTRY_COMPARE(progressed.count(), 1);
        QVERIFY(mending.isDone() && mending.result().underWay.isEmpty());
        QCOMPARE(mending.result().waiting, QStringList{place.song});
        QVERIFY(QFile::rename(away, place.song));
        // What is half written must not take the place of what was rescued, also where it says nothing new.
        QCOMPARE(place.files.update(place.song, newLyrics), UpdateResult::AwaitsRestoring);
        QCOMPARE(place.files.update(place.song, {}), UpdateResult::AwaitsRestoring);
        QCOMPARE(tags::SaveJournal(place.data).mend().restored, QStringList{place.song});
        QCOMPARE(place.files.read(place.song), before);
    }
};

QTEST_GUILESS_MAIN(tst_SafeSave)
#include "tst_safesave.moc"
