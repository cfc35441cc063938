// SPDX-License-Identifier: MIT
#include "support/TestFolder.h"
#include "support/TestTable.h"
#include "updates/DownloadDialog.h"
#include "updates/ReleaseAge.h"
#include "updates/ReleaseNotes.h"
#include "updates/UpdateChecker.h"
#include "updates/UpdateDialog.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTextBrowser>
#include <QtTest>

class tst_UpdateDialogs : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QCoreApplication::setApplicationName("Versewell"_s);
        QCoreApplication::setApplicationVersion("1.5.6"_s);
    }

    void theAgeIsToldInTheLargestUnitThatFits_data()
    {
        addTextColumns("released", "today", "age");
        addRow("yesterday is no age", "2026-03-01"_s, "2026-03-02"_s, ""_s);
        addRow("a day ahead", "2026-03-02"_s, "2026-03-01"_s, ""_s);
        addRow("no date", ""_s, "2026-03-01"_s, ""_s);
        addRow("days", "2026-01-31"_s, "2026-03-30"_s, "58 days"_s);
        addRow("two months to the day", "2026-01-30"_s, "2026-03-30"_s, "2 months"_s);
        addRow("the last day of a short month", "2025-12-31"_s, "2026-02-28"_s, "2 months"_s);
        addRow("a day less than two years", "2024-03-02"_s, "2026-03-01"_s, "23 months"_s);
        addRow("from a leap day", "2024-02-29"_s, "2026-02-28"_s, "2 years"_s);
    }

    void theAgeIsToldInTheLargestUnitThatFits()
    {
        QFETCH(QString, released);
        QFETCH(QString, today);
        QTEST(releaseAge(QDate::fromString(released, Qt::ISODate), QDate::fromString(today, Qt::ISODate)), "age");
    }

    void notesAreListsOfText_data()
    {
        addTextColumns("changes", "items");
        addRow("a dash and blanks around it", "- one\n  - two \n--three"_s,
               "<li>one</li><li>two</li><li>-three</li>"_s);
        addRow("a critical change", "- a CRITICAL fault"_s, "<li><b>a CRITICAL fault</b></li>"_s);
        addRow("blank lines", "\n\n- one\r\n -\n"_s, "<li>one</li>"_s);
        addRow("markup", "<img src='http://127.0.0.1/x'>&amp;</ul>"_s,
               "<li>&lt;img src='http://127.0.0.1/x'&gt;&amp;amp;&lt;/ul&gt;</li>"_s);
        addRow("none at all", ""_s, ""_s);
    }

    void notesAreListsOfText()
    {
        QFETCH(QString, changes);
        QFETCH(QString, items);
        const QString list = "<b>Version 2.0</b><br/>%1<ul>"_s + items + "</ul><br/>"_s;
        const QDate date(2026, 12, 24);
        QCOMPARE(releaseNotes({{"2.0"_s, {}, changes, {}, {}}}), list.arg(QString()));
        QCOMPARE(releaseNotes({{"2.0"_s, {}, changes, date, {}}}),
                 list.arg("<i>%1</i><br/>"_s.arg(date.toString(Qt::TextDate))));
    }

    void hostileNotesAreCut()
    {
        ReleasedVersions versions(3000, {"9"_s.repeated(100000), {}, "x"_s.repeated(300000), {}, {}});
        QVERIFY(releaseNotes(versions).size() < 200000);
        versions = {{"2.0"_s, {}, "- x\n"_s.repeated(100000), {}, {}}};
        QCOMPARE(releaseNotes(versions).count("<li>"_s), 999);
    }

    void theOfferSaysWhatIsKnown_data()
    {
        QTest::addColumn<QDate>("released");
        QTest::addColumn<int>("newer");
        addTextColumns("words");
        const auto offer =
            "A new version of <b>Versewell</b> is available!|Versewell <b>2.%1</b> is available - you have "
            "<b>1.5.6</b>. Would you like to download it now?|"_s;
        addRow("everything", QDate(2024, 1, 1), 3,
               offer.arg(2) +
                   "Your version was released more than <b>2 years</b> ago.|Since then, <b>3</b> versions have "
                   "been released.|Release notes:"_s);
        addRow("one newer version", QDate(2024, 1, 1), 1,
               offer.arg(0) + "Your version was released more than <b>2 years</b> ago.|Release notes:"_s);
        addRow("no date of the running version", QDate(), 3, offer.arg(2) + "Release notes:"_s);
    }

    void theOfferSaysWhatIsKnown()
    {
        QFETCH(QDate, released);
        QFETCH(int, newer);
        ReleasedVersions versions = {{"1.5"_s, {}, "- old"_s, {}, {}}, {"1.5.6"_s, {}, "- mine"_s, released, {}}};
        for (int i = 0; i < newer; ++i)
            versions.append({"2.%1"_s.arg(i), {}, "- new"_s, {}, {}});
        const UpdateDialog dialog(versions, QDate(2026, 11, 23), UpdateDialog::Occasion::Asked);
        QStringList words;
        for (const QLabel *label : dialog.findChildren<QLabel *>()) {
            if (!label->isHidden() && !label->text().isEmpty())
                words.append(label->text());
        }
        QTEST(words.join(QLatin1Char('|')), "words");
        const QString notes = dialog.findChild<QTextBrowser *>()->toPlainText();
        QCOMPARE(notes.count("new"_s), newer);
        QVERIFY(notes.startsWith("Version 2.%1"_s.arg(newer - 1)) && !notes.contains("mine"_s));
    }

    // The program may be in the hands of somebody who types.
    void noKeyAnswersAnOfferThatNobodyAskedFor()
    {
        UpdateDialog dialog({{"2.0"_s, {}, {}, {}, {}}}, {}, UpdateDialog::Occasion::Unasked);
        QSignalSpy answered(&dialog, &QDialog::finished);
        dialog.show();
        QTest::keyClicks(dialog.focusWidget(), "some words "_s);
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
        QCOMPARE(answered.count(), 0);
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QCOMPARE(answered, (QList<QVariantList>{{UpdateDialog::RemindLater}}));
    }

    void theProgressIsToldInMegabytes()
    {
        const TestFolder folder;
        UpdateEnvironment environment;
        environment.folder = folder.path();
        UpdateChecker checker(environment);
        const DownloadDialog dialog(&checker);
        const auto *label = dialog.findChild<QLabel *>("progressLabel"_s);
        emit checker.progressChanged(3774874, 14784921);
        QCOMPARE(label->text(), "3.6 MB of 14.1 MB"_s);
        emit checker.progressChanged(3774874, 0); // of an unknown size, with a busy bar
        QCOMPARE(label->text(), "3.6 MB"_s);
        QCOMPARE(dialog.findChild<QProgressBar *>()->maximum(), 0);
        QVERIFY(dialog.findChild<QPushButton *>("installButton"_s)->isHidden());
    }
};

QTEST_MAIN(tst_UpdateDialogs)
#include "tst_updatedialogs.moc"
