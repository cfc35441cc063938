// SPDX-License-Identifier: MIT
#include "WindowWalk.h"
#include "app/RecoveryDialog.h"
#include "network/Endpoints.h"
#include "support/TestTable.h"
#include "support/WindowStage.h"
#include "tracking/AppTracker.h"
#include "ui/AboutDialog.h"
#include "ui/AddDialogs.h"
#include "ui/ExitWidget.h"
#include "ui/LyricsEdit.h"
#include "ui/SettingsDialog.h"
#include "ui/UsageConsent.h"
#include "ui/UsageExample.h"
#include "updates/DownloadDialog.h"
#include "updates/UpdateChecker.h"
#include "updates/UpdateDialog.h"
#include "updates/UpdateInfoDialog.h"
#include "updates/Updater.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QPushButton>
#include <QSettings>
#include <QTabWidget>
#include <QTest>
#include <QTranslator>

#include <memory>

namespace {

constexpr int doubledText = 18; // in points; a desktop without wishes of its own has 9

QStringList languages()
{
    QStringList codes;
    const QDir folder(QStringLiteral(VERSEWELL_TRANSLATIONS_DIR));
    for (const QString &file : folder.entryList({"versewell_*.ts"_s}))
        codes.append(file.mid(10).chopped(3));
    return codes;
}

ReleasedVersions newerVersion()
{
    return {{"1.5.6"_s, {}, {}, QDate(2025, 1, 1), {}}, {"9.0"_s, {}, "- x"_s, QDate(2026, 1, 1), {}}};
}

} // namespace

// Goes through all windows of the program in each language.
class tst_Languages : public QObject, private WindowStage
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // Shows what is there with a site and a collector only; nothing is asked of them.
        QSettings().setValue("endpoints/Maker"_s, "http://127.0.0.1:1"_s);
        QSettings().setValue("endpoints/Collector"_s, "http://127.0.0.1:1"_s);
        reloadEndpoints();
        m_font = QApplication::font();
    }

    void init()
    {
        makeParts();
        m_settings->setProxyPort(65535);
        m_tracker = std::make_unique<AppTracker>();
        m_consent = std::make_unique<UsageConsent>(m_tracker.get());
        m_consent->load();
    }

    void cleanup()
    {
        m_window.reset();
        QCoreApplication::removeTranslator(&m_translator);
        QApplication::setFont(m_font);
    }

    void everyWindowServesEverybody_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<bool>("isDoubled");
        QTest::addColumn<bool>("isChangedWhileRunning");
        const QStringList codes = languages();
        QVERIFY(codes.size() >= 12);
        for (const QString &code : codes)
            QTest::newRow(qPrintable(code)) << code << false << (code == QLatin1String("fr"));
        for (const char *code : {"de", "ru"})
            QTest::addRow("%s, text of twice the size", code) << QString::fromLatin1(code) << true << false;
    }

    void everyWindowServesEverybody()
    {
        QFETCH(QString, language);
        QFETCH(bool, isDoubled);
        QFETCH(bool, isChangedWhileRunning);
        m_catalogue = std::make_unique<Catalogue>(language);
        m_faults.clear();
        if (isDoubled) {
            QFont font = m_font;
            font.setPointSize(doubledText);
            QApplication::setFont(font);
        }
        QVERIFY(m_translator.load(QStringLiteral(VERSEWELL_LOCALE_DIR "/versewell.%1.qm").arg(language)));
        if (!isChangedWhileRunning)
            QVERIFY(QCoreApplication::installTranslator(&m_translator));
        Updater updater;
        openWindow(this, QSize(640, 400), m_tracker.get(), m_consent.get(), &updater);
        if (isChangedWhileRunning) {
            QVERIFY(QCoreApplication::installTranslator(&m_translator));
            QCoreApplication::processEvents();
        }
        walkWindow();
        walkDialogs();
        walkRecovery();
        m_model->itemAt(2)->setProcessState(ModelItem::ProcessIdle);
        walkUpdate(&updater);
        walkQuestions();
        walkNotices();
        m_window.reset(); // before the updater
        m_faults.removeDuplicates();
        QVERIFY2(m_faults.isEmpty(), qPrintable(m_faults.join(QLatin1Char('\n'))));
    }

private:
    void walkWindow()
    {
        look(m_window.get(), "empty");
        listSongs();
        for (int row = 0; row < m_model->rowCount(); ++row) {
            m_proxy->itemClicked(row);
            QTest::qWait(0);
            look(m_window.get(), "a song");
        }
        m_proxy->itemClicked(0);
        m_window->lyricsEdit()->begin(m_model->itemAt(0));
        look(m_window.get(), "an edit");
        m_window->lyricsEdit()->cancel();
        m_proxy->selectAll();
        look(m_window.get(), "several");
    }

    void walkDialogs()
    {
        QWidget *window = m_window.get();
        SettingsDialog settings(m_settings.get(), m_consent.get(), window);
        AboutDialog about(window);
        ExitWidget exit(m_model.get(), window);
        UpdateDialog update(newerVersion(), QDate(2026, 5, 1), UpdateDialog::Occasion::Asked, window);
        UpdateInfoDialog updateInfo(window);
        UpdateChecker checker;
        DownloadDialog download(&checker, window);
        UsageExample example(m_tracker.get(), window);
        const std::unique_ptr<QFileDialog> files(makeAddFilesDialog("*.mp3"_s, window));
        const std::unique_ptr<QFileDialog> folder(makeAddFolderDialog(window));
        for (QWidget *dialog : std::initializer_list<QWidget *>{&settings, &about, &exit, &update, &updateInfo,
                                                                &download, &example, files.get(), folder.get()})
            show(dialog);
    }

    void walkRecovery()
    {
        RecoveryDialog recovery;
        show(&recovery);
        recovery.show();
        recovery.findChild<QPushButton *>("btnClearSettings"_s)->click();
        lookAtQuestion(&recovery, "clearing all settings");
    }

    // There is nobody at the maker's address.
    void walkUpdate(Updater *updater)
    {
        updater->setParentWindow(m_window.get());
        updater->checkByUser();
        lookAtQuestion(m_window.get(), "no update");
    }

    void walkQuestions()
    {
        m_model->removeAll();
        addCopies(2);
        beginDraft(0);
        m_window->quit_app();
        lookAtQuestion(m_window.get(), "a draft");
        m_window->lyricsEdit()->cancel();
        song(0)->setArtistTag("Anna"_s);
        m_window->quit_app();
        lookAtQuestion(m_window.get(), "a new name");
        holdWrites();
        beginDraft(1);
        m_window->lyricsEdit()->save();
        action("actionClearList")->trigger();
        lookAtQuestion(m_window.get(), "a wait");
        QVERIFY(QFile::remove(song(1)->url().toLocalFile()));
        m_disk.release();
        QTRY_VERIFY(song(1)->unsaved());
        action("actionClearList")->trigger();
        lookAtQuestion(m_window.get(), "lyrics in no file");
        look(m_window.get(), "a failed write");
    }

    void walkNotices()
    {
        m_window->showSettingsDamaged("/a"_s);
        m_window->showSettingsUnreadable();
        emit m_model->filesLeftOut(3);
        look(m_window.get(), "notices");
    }

    // Looks at a question that opens, and says no.
    void lookAtQuestion(QWidget *asker, const char *place)
    {
        const auto box = [asker] {
            return asker->findChild<QMessageBox *>();
        };
        QTRY_VERIFY2(box(), place);
        look(box(), place);
        box()->reject();
        QTRY_VERIFY(!box());
        asker->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(asker));
    }

    void show(QWidget *dialog)
    {
        dialog->show();
        QVERIFY(QTest::qWaitForWindowExposed(dialog));
        look(dialog, dialog->metaObject()->className());
        auto *tabs = dialog->findChild<QTabWidget *>();
        for (int i = 1; tabs && i < tabs->count(); ++i) {
            tabs->setCurrentIndex(i);
            look(dialog, dialog->metaObject()->className());
        }
        dialog->hide();
    }

    void look(QWidget *window, const char *place)
    {
        for (const QString &fault : faultsOf(window, *m_catalogue))
            m_faults.append(QLatin1String(place) + QLatin1String(": ") + fault);
    }

    void listSongs()
    {
        m_model->add({sample("lyrics.mp3"), sample("untagged.mp3"), sample("plain.flac")});
        QTRY_VERIFY(m_model->itemAt(2)->tagsLoaded());
        m_model->itemAt(2)->setProcessState(ModelItem::ProcessWaiting);
    }

    QFont m_font;
    QTranslator m_translator;
    std::unique_ptr<Catalogue> m_catalogue;
    QStringList m_faults;
    std::unique_ptr<AppTracker> m_tracker;
    std::unique_ptr<UsageConsent> m_consent;
};

QTEST_MAIN(tst_Languages)
#include "tst_languages.moc"
