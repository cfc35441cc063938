// SPDX-License-Identifier: MIT
#include "WindowWalk.h"
#include "app/RecoveryDialog.h"
#include "model/FolderScanner.h"
#include "model/MainModel.h"
#include "model/ModelItem.h"
#include "model/ProxyModel.h"
#include "network/Endpoints.h"
#include "settings/Settings.h"
#include "tracking/AppTracker.h"
#include "ui/AboutDialog.h"
#include "ui/AddDialogs.h"
#include "ui/AppPalette.h"
#include "ui/ExitWidget.h"
#include "ui/LyricsEdit.h"
#include "ui/MainWindow.h"
#include "ui/QuestionBox.h"
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
#include <QMessageBox>
#include <QSettings>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

#include <memory>

namespace {

constexpr int doubledText = 18; // in points; a desktop without wishes of its own has 9

QStringList languages()
{
    QStringList codes;
    const QDir folder(QStringLiteral(VERSEWELL_TRANSLATIONS_DIR));
    for (const QString &file : folder.entryList({QStringLiteral("versewell_*.ts")}))
        codes.append(file.mid(10).chopped(3));
    return codes;
}

ReleasedVersions newerVersion()
{
    return {{QStringLiteral("1.5.6"), {}, {}, QDate(2025, 1, 1), {}},
            {QStringLiteral("9.0"), {}, QStringLiteral("- x"), QDate(2026, 1, 1), {}}};
}

} // namespace

// Goes through all windows of the program in each language.
class tst_Languages : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void everyWindowServesEverybody_data();
    void everyWindowServesEverybody();

private:
    void listSongs();
    void walkWindow(MainWindow *window);
    void walkDialogs(MainWindow *window);
    void look(QWidget *window, const char *place);
    void show(QWidget *dialog);

    QTemporaryDir m_folder;
    QFont m_font;
    QTranslator m_translator;
    std::unique_ptr<Catalogue> m_catalogue;
    QStringList m_faults;
    std::unique_ptr<Settings> m_settings;
    std::unique_ptr<MainModel> m_model;
    std::unique_ptr<ProxyModel> m_proxy;
    std::unique_ptr<FolderScanner> m_scanner;
    std::unique_ptr<AppTracker> m_tracker;
    std::unique_ptr<UsageConsent> m_consent;
    AppPalette m_palette;
};

void tst_Languages::initTestCase()
{
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_folder.path());
    QCoreApplication::setOrganizationName(QStringLiteral("Quillmarsh"));
    QCoreApplication::setApplicationName(QStringLiteral("Versewell"));
    QCoreApplication::setApplicationVersion(QStringLiteral("1.5.6"));
    qputenv("QMLSCENE_DEVICE", "softwarecontext");
    // Shows what is there with a site and a collector only; nothing is asked of them.
    QSettings().setValue(QStringLiteral("endpoints/Maker"), QStringLiteral("http://127.0.0.1:1"));
    QSettings().setValue(QStringLiteral("endpoints/Collector"), QStringLiteral("http://127.0.0.1:1"));
    reloadEndpoints();
    m_font = QApplication::font();
}

void tst_Languages::init()
{
    m_settings = std::make_unique<Settings>();
    m_settings->setProxyPort(65535);
    m_model = std::make_unique<MainModel>();
    m_model->setReaderProgram(QStringLiteral(VERSEWELL_READER));
    m_proxy = std::make_unique<ProxyModel>();
    m_proxy->setSourceModel(m_model.get());
    m_scanner = std::make_unique<FolderScanner>();
    m_tracker = std::make_unique<AppTracker>();
    m_consent = std::make_unique<UsageConsent>(m_tracker.get());
    m_consent->load();
}

void tst_Languages::cleanup()
{
    QCoreApplication::removeTranslator(&m_translator);
    QApplication::setFont(m_font);
}

void tst_Languages::listSongs()
{
    QList<QUrl> songs;
    for (const char *name : {"lyrics.mp3", "untagged.mp3", "plain.flac"})
        songs.append(QUrl::fromLocalFile(QStringLiteral(VERSEWELL_SAMPLES_DIR "/") + QLatin1String(name)));
    m_model->add(songs);
    QTRY_VERIFY(m_model->itemAt(2)->tagsLoaded());
    m_model->itemAt(2)->setProcessState(ModelItem::ProcessWaiting);
}

void tst_Languages::look(QWidget *window, const char *place)
{
    for (const QString &fault : faultsOf(window, *m_catalogue))
        m_faults.append(QLatin1String(place) + QLatin1String(": ") + fault);
}

void tst_Languages::show(QWidget *dialog)
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

void tst_Languages::walkWindow(MainWindow *window)
{
    look(window, "empty");
    listSongs();
    for (int row = 0; row < m_model->rowCount(); ++row) {
        m_proxy->itemClicked(row);
        QTest::qWait(0);
        look(window, "a song");
    }
    m_proxy->itemClicked(0);
    window->lyricsEdit()->begin(m_model->itemAt(0));
    look(window, "an edit");
    window->lyricsEdit()->cancel();
    m_proxy->selectAll();
    look(window, "several");
}

void tst_Languages::walkDialogs(MainWindow *window)
{
    SettingsDialog settings(m_settings.get(), m_consent.get(), window);
    AboutDialog about(window);
    ExitWidget exit(m_model.get(), window);
    RecoveryDialog recovery;
    UpdateDialog update(newerVersion(), QDate(2026, 5, 1), UpdateDialog::Occasion::Asked, window);
    UpdateInfoDialog updateInfo(window);
    UpdateChecker checker;
    DownloadDialog download(&checker, window);
    UsageExample example(m_tracker.get(), window);
    const std::unique_ptr<QMessageBox> question(makeQuestionBox(QString(), QString(), QMessageBox::Discard, window));
    const std::unique_ptr<QFileDialog> files(makeAddFilesDialog(QStringLiteral("*.mp3"), window));
    const std::unique_ptr<QFileDialog> folder(makeAddFolderDialog(window));
    for (QWidget *dialog :
         std::initializer_list<QWidget *>{&settings, &about, &exit, &recovery, &update, &updateInfo, &download,
                                          &example, question.get(), files.get(), folder.get()})
        show(dialog);
}

void tst_Languages::everyWindowServesEverybody_data()
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

void tst_Languages::everyWindowServesEverybody()
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
    MainWindow window({m_model.get(), m_proxy.get(), m_scanner.get(), m_settings.get(), &m_palette, this,
                       m_tracker.get(), m_consent.get(), &updater});
    window.resize(640, 400);
    QSignalSpy frames(&window, &MainWindow::firstFrameShown);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTRY_COMPARE(frames.size(), 1); // the scene is whole then
    if (isChangedWhileRunning) {
        QVERIFY(QCoreApplication::installTranslator(&m_translator));
        QCoreApplication::processEvents();
    }
    walkWindow(&window);
    walkDialogs(&window);
    m_model->itemAt(2)->setProcessState(ModelItem::ProcessIdle);
    m_faults.removeDuplicates();
    QVERIFY2(m_faults.isEmpty(), qPrintable(m_faults.join(QLatin1Char('\n'))));
}

QTEST_MAIN(tst_Languages)

#include "tst_languages.moc"
