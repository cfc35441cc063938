// SPDX-License-Identifier: MIT
#include "ui/MainWindow.h"

#include "model/FolderScanner.h"
#include "model/MainModel.h"
#include "model/ProxyModel.h"
#include "network/Endpoints.h"
#include "settings/Settings.h"
#include "ui/AppPalette.h"
#include "ui/ExitWidget.h"
#include "ui/LyricsEdit.h"

#include <QAction>
#include <QClipboard>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWidget>
#include <QScreen>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolButton>

namespace {

QStringList warnings;

void noteWarnings(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type != QtDebugMsg && type != QtInfoMsg)
        warnings.append(message);
}

QUrl sample(const char *name)
{
    return QUrl::fromLocalFile(QStringLiteral(VERSEWELL_SAMPLES_DIR "/") + QLatin1String(name));
}

// Opens pages in place of the browser.
class BrowserStandIn : public QObject
{
    Q_OBJECT

public:
    BrowserStandIn() { QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "open"); }
    ~BrowserStandIn() override { QDesktopServices::unsetUrlHandler(QStringLiteral("https")); }

    QList<QUrl> urls;

public slots:
    void open(const QUrl &url) { urls.append(url); }
};

} // namespace

class tst_MainWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void theSceneShowsTheSongs();
    void theKeyboardReachesListAndLyrics();
    void keysOfTheEditWorkFromTheList();
    void theStatusBarSaysWhatIsGoingOn();
    void noticesStandSideBySide();
    void geometryAndPaneComeBack_data();
    void geometryAndPaneComeBack();
    void theMenusHaveTheirActions();
    void textsHaveTheirKeysForThemselves_data();
    void textsHaveTheirKeysForThemselves();
    void filesAndFoldersAreDropped();
    void theDialogsRememberTheirFolders();
    void aSongIsTakenToClipboardAndBrowser();
    void coloursFollowThePalette();
    void quittingAsksWhileSongsAreSearchedFor_data();
    void quittingAsksWhileSongsAreSearchedFor();
    void aDraftIsAskedAbout_data();
    void aDraftIsAskedAbout();
    void aRightClickAwayFromADraftAsksAndOpensNoMenu();
    void escapeOutsideTheLyricsAsksFirst();
    void anUnchangedDraftGoesQuietly();
    void rowsAreSelectedHiddenAndRemovedByKey();
    void theListIsSavedWhenThatIsWanted_data();
    void theListIsSavedWhenThatIsWanted();

private:
    QQuickItem *sceneItem(const QString &name) const
    {
        return m_window->findChild<QQuickWidget *>()->rootObject()->findChild<QQuickItem *>(name);
    }
    QStringList labels() const
    {
        QStringList texts;
        for (const QLabel *label : m_window->findChildren<QLabel *>())
            texts.append(label->text());
        return texts;
    }

    QAction *action(const char *name) const { return m_window->findChild<QAction *>(QLatin1String(name)); }
    QQuickWidget *scene() const { return m_window->findChild<QQuickWidget *>(); }
    void openWindow();
    void addCopies(int count);

    QTemporaryDir m_folder;
    std::unique_ptr<QTemporaryDir> m_songs;

    std::unique_ptr<Settings> m_settings;
    std::unique_ptr<MainModel> m_model;
    std::unique_ptr<ProxyModel> m_proxy;
    std::unique_ptr<FolderScanner> m_scanner;
    AppPalette m_palette;
    std::unique_ptr<MainWindow> m_window;
    QtMessageHandler m_handler = nullptr;
};

void tst_MainWindow::initTestCase()
{
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_folder.path());
    QCoreApplication::setOrganizationName(QStringLiteral("Quillmarsh"));
    QCoreApplication::setApplicationName(QStringLiteral("Versewell"));
    QCoreApplication::setApplicationVersion(QStringLiteral("1.5.6"));
    qputenv("QMLSCENE_DEVICE", "softwarecontext");
}

void tst_MainWindow::init()
{
    QSettings().clear();
    reloadEndpoints();
    warnings.clear();
    m_handler = qInstallMessageHandler(noteWarnings);
    m_settings = std::make_unique<Settings>();
    m_model = std::make_unique<MainModel>();
    m_model->setReaderProgram(QStringLiteral(VERSEWELL_READER));
    m_proxy = std::make_unique<ProxyModel>();
    m_proxy->setSourceModel(m_model.get());
    m_scanner = std::make_unique<FolderScanner>();
    openWindow();
}

void tst_MainWindow::openWindow()
{
    m_window = std::make_unique<MainWindow>(
        MainWindow::Parts{m_model.get(), m_proxy.get(), m_scanner.get(), m_settings.get(), &m_palette, this});
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

// Songs without names, which nobody searches for, in a folder of their own.
void tst_MainWindow::addCopies(int count)
{
    m_songs = std::make_unique<QTemporaryDir>();
    QList<QUrl> urls;
    for (int i = 0; i < count; ++i) {
        const QString file = m_songs->filePath(QStringLiteral("%1.mp3").arg(i));
        QVERIFY(QFile::copy(sample("untagged.mp3").toLocalFile(), file));
        urls.append(QUrl::fromLocalFile(file));
    }
    m_model->add(urls);
    for (int i = 0; i < count; ++i)
        QTRY_COMPARE(m_model->itemAt(i)->processState(), ModelItem::ProcessNotSuitable);
}

void tst_MainWindow::cleanup()
{
    m_window.reset();
    m_proxy.reset();
    m_model.reset();
    qInstallMessageHandler(m_handler);
    QCOMPARE(warnings.filter(QStringLiteral("qml")), QStringList());
}

void tst_MainWindow::theSceneShowsTheSongs()
{
    QCOMPARE(m_window->sceneErrors(), QString());
    m_model->add({sample("lyrics.mp3"), sample("untagged.mp3")});
    QTRY_COMPARE(m_model->itemAt(1)->processState(), ModelItem::ProcessNotSuitable);
    QQuickItem *list = sceneItem(QStringLiteral("songList"));
    QQuickItem *lyrics = sceneItem(QStringLiteral("lyricsText"));
    list->setProperty("currentIndex", 0);
    QCOMPARE(lyrics->property("text").toString(), m_model->itemAt(0)->lyricsTag());
    m_model->itemAt(0)->setEditedLyricsTag(QStringLiteral("<b>bold</b>"));
    QCOMPARE(lyrics->property("text").toString(), QStringLiteral("<b>bold</b>"));
    QCOMPARE(lyrics->property("textFormat").toInt(), int(Qt::PlainText));
    list->setProperty("currentIndex", 1);
    QQuickItem *state = sceneItem(QStringLiteral("stateLine"));
    QCOMPARE(state->property("text").toString(), QStringLiteral("A search needs an artist and a title."));
    m_model->itemAt(1)->setProcessState(ModelItem::ProcessComplete);
    m_model->itemAt(1)->setErrorString(QStringLiteral("<i>the site is down</i>"));
    QCOMPARE(state->property("text").toString(), QStringLiteral("<i>the site is down</i>"));
    QCOMPARE(state->property("textFormat").toInt(), int(Qt::PlainText));
    m_model->removeAll();
    QTRY_VERIFY(!lyrics->isVisible());
}

void tst_MainWindow::theKeyboardReachesListAndLyrics()
{
    m_model->add({sample("lyrics.mp3"), sample("untagged.mp3"), sample("plain.flac")});
    QTRY_VERIFY(m_model->itemAt(2)->tagsLoaded());
    m_model->itemAt(0)->setEditedLyricsTag(QStringLiteral("la\n").repeated(500));
    QWidget *scene = m_window->findChild<QQuickWidget *>();
    QQuickItem *list = sceneItem(QStringLiteral("songList"));
    QQuickItem *lyrics = sceneItem(QStringLiteral("lyricsText"));
    QTest::keyClick(scene, Qt::Key_End);
    QCOMPARE(list->property("currentIndex").toInt(), 2);
    QTest::keyClick(scene, Qt::Key_Up);
    QTest::keyClick(scene, Qt::Key_Home);
    QCOMPARE(list->property("currentIndex").toInt(), 0);
    const auto top = [lyrics] {
        return lyrics->mapToScene({0, 0}).y();
    };
    const double atBeginning = top();
    for (int tabs = 0; tabs < 30 && !lyrics->hasActiveFocus(); ++tabs)
        QTest::keyClick(scene, Qt::Key_Tab);
    QTest::keyClick(scene, Qt::Key_PageDown);
    QVERIFY(top() < atBeginning - 100);
    bool reachedGear = false; // the way round leads through the window's own buttons
    for (int tabs = 0; tabs < 30 && !list->hasActiveFocus(); ++tabs) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        reachedGear = reachedGear || QApplication::focusWidget()->objectName() == QLatin1String("gearButton");
    }
    QVERIFY(reachedGear);
    scene->setFocus();
    list->forceActiveFocus();
    QTest::keyClick(scene, Qt::Key_Down);
    QCOMPARE(list->property("currentIndex").toInt(), 1);
    QCOMPARE(top(), atBeginning); // another song begins at its beginning
}

void tst_MainWindow::keysOfTheEditWorkFromTheList()
{
    m_model->add({sample("lyrics.mp3")});
    QTRY_COMPARE(m_model->itemAt(0)->processState(), ModelItem::ProcessComplete);
    const LyricsEdit *edit = m_window->lyricsEdit();
    QTest::keyClick(m_window->windowHandle(), Qt::Key_F2);
    QTRY_VERIFY(edit->active());
    QQuickItem *field = sceneItem(QStringLiteral("titleField"));
    field->forceActiveFocus();
    QTest::keyClick(m_window->windowHandle(), Qt::Key_X);
    QTest::keyClick(m_window->windowHandle(), Qt::Key_Escape);
    QVERIFY(edit->active()); // the first Escape was the field's
    QVERIFY(!field->property("pending").toBool());
    sceneItem(QStringLiteral("songList"))->forceActiveFocus();
    QTest::keyClick(m_window->windowHandle(), Qt::Key_Escape);
    QVERIFY(!edit->active());
}

void tst_MainWindow::theStatusBarSaysWhatIsGoingOn()
{
    const auto *progress = m_window->findChild<QProgressBar *>();
    QTRY_VERIFY(!progress->isVisible());
    addCopies(4);
    for (int row = 0; row < 4; ++row)
        m_model->itemAt(row)->setProcessState(ModelItem::ProcessWaiting);
    QTRY_VERIFY(labels().contains(QStringLiteral("Searching... 4 left...")));
    m_model->itemAt(0)->setProcessState(ModelItem::ProcessComplete);
    QTRY_VERIFY(labels().contains(QStringLiteral("Searching... 3 left...")));
    QTRY_VERIFY(progress->isVisible());
    QTRY_COMPARE(progress->maximum() - progress->value(), 3);
    QVERIFY(progress->value() >= 1);
    m_model->removeAll();
    QTRY_VERIFY(!progress->isVisible());
    QTRY_VERIFY(labels().filter(QStringLiteral("Searching")).isEmpty());
}

void tst_MainWindow::noticesStandSideBySide()
{
    const auto exportLyrics = [this] {
        action("actionExportLyrics")->trigger();
    };
    addCopies(3);
    QVERIFY(!action("actionRemoveSelected")->isEnabled() || m_proxy->selectedCount() > 0);
    m_window->showSettingsDamaged(QStringLiteral("/home/<b>x</b>"));
    emit m_model->filesLeftOut(4);
    emit m_model->filesLeftOut(3);
    m_proxy->selectAll();
    exportLyrics();
    QTRY_VERIFY(labels().contains(QStringLiteral("There are no lyrics to export")));
    for (int row = 0; row < 3; ++row)
        m_model->itemAt(row)->setEditedLyricsTag(QStringLiteral("la"));
    // A folder stands where the text file would.
    QVERIFY(QDir(m_songs->path()).mkdir(QStringLiteral("1.txt")));
    exportLyrics();
    QTRY_VERIFY(labels().contains(QLatin1String("The lyrics could not be written to ") +
                                  m_songs->filePath(QStringLiteral("1.txt"))));
    QVERIFY(QFile::exists(m_songs->filePath(QStringLiteral("2.txt"))));
    QVERIFY(QFile::remove(m_songs->filePath(QStringLiteral("0.txt"))));
    QVERIFY(QDir(m_songs->path()).mkdir(QStringLiteral("0.txt")));
    exportLyrics();
    QTRY_VERIFY(labels().contains(QStringLiteral("The lyrics of 2 song(s) could not be exported")));
    QVERIFY(labels().contains(QStringLiteral("The list is full. Files left out: 7")));
    QCOMPARE(labels().filter(QStringLiteral("settings file")).size(), 1);
    QVERIFY(m_window->minimumSizeHint().width() < 640);
    for (QToolButton *button : m_window->findChildren<QToolButton *>()) {
        if (button->accessibleDescription().contains(QStringLiteral("settings file")))
            button->click();
    }
    QTRY_COMPARE(labels().filter(QStringLiteral("settings file")).size(), 0);
}

void tst_MainWindow::geometryAndPaneComeBack_data()
{
    QTest::addColumn<QRect>("place");
    QTest::addColumn<bool>("maximized");
    QTest::newRow("a place on the screen") << QRect(50, 60, 700, 500) << false;
    QTest::newRow("maximized") << QRect(50, 60, 700, 500) << true;
    QTest::newRow("off the screen") << QRect(5000, 4000, 700, 500) << false;
}

void tst_MainWindow::geometryAndPaneComeBack()
{
    QFETCH(QRect, place);
    QFETCH(bool, maximized);
    m_window->setGeometry(place);
    if (maximized)
        m_window->showMaximized();
    scene()->rootObject()->setProperty("listWidth", 321);
    m_window.reset();
    m_model->add({sample("lyrics.mp3")});
    openWindow();
    QTRY_COMPARE(m_window->isMaximized(), maximized);
    QTRY_COMPARE(m_window->normalGeometry().size(), place.size());
    const QRect screen = m_window->screen()->availableGeometry();
    QVERIFY(screen.intersects(m_window->geometry()));
    if (screen.contains(place))
        QCOMPARE(m_window->normalGeometry(), place);
    QTRY_COMPARE(sceneItem(QStringLiteral("lyricsText"))->property("text").toString(), m_model->itemAt(0)->lyricsTag());
    QCOMPARE(scene()->rootObject()->property("listWidth").toInt(), 321);
    QCOMPARE(sceneItem(QStringLiteral("songList"))->width(), 321.0);
}

void tst_MainWindow::theMenusHaveTheirActions()
{
    QStringList menus;
    for (const QAction *title : m_window->menuBar()->actions()) {
        QStringList entries;
        for (const QAction *entry : title->menu()->actions())
            entries.append(entry->text() + entry->shortcut().toString());
        menus.append(title->text() + QLatin1String(": ") + entries.join(QLatin1Char('|')));
    }
    QCOMPARE(
        menus,
        QStringList(
            {QStringLiteral("File: Add fileCtrl+O|Add folder||Export lyrics to TXT file||Preferences|Quit"),
             QStringLiteral("Edit: Select allCtrl+A||Remove selectedDel|Remove with lyricsMeta+Alt+Del||Clear list"),
             QStringLiteral("View: Hide file(s) with lyricsCtrl+L"), QStringLiteral("Help: About")}));
    QVERIFY(!action("actionAddFile")->icon().isNull());
    QCOMPARE(action("actionTwitter")->toolTip(), QStringLiteral("Twitter"));
    m_proxy->setShowFound(false);
    QVERIFY(action("actionHideWithLyrics")->isChecked());
}

void tst_MainWindow::textsHaveTheirKeysForThemselves_data()
{
    QTest::addColumn<QByteArray>("element");
    QTest::addColumn<QString>("afterDelete");
    QTest::newRow("a field") << QByteArray("TextInput {") << "bc";
    QTest::newRow("a text that is edited") << QByteArray("TextEdit {") << "bc";
    QTest::newRow("a text that is only read")
        << QByteArray("TextEdit { readOnly: true; selectByKeyboard: true;") << "abc";
}

void tst_MainWindow::textsHaveTheirKeysForThemselves()
{
    QFETCH(QByteArray, element);
    QFETCH(QString, afterDelete);
    addCopies(2);
    QQmlComponent component(scene()->engine());
    component.setData("import QtQuick 2.15\n" + element + " text: 'abc' }", QUrl());
    const std::unique_ptr<QObject> object(component.create());
    auto *text = qobject_cast<QQuickItem *>(object.get());
    QVERIFY(text);
    text->setParentItem(scene()->rootObject());
    text->forceActiveFocus();
    text->setProperty("cursorPosition", 0);
    QTest::keyClick(scene(), Qt::Key_Delete);
    QCOMPARE(m_model->rowCount(), 2);
    QCOMPARE(text->property("text").toString(), afterDelete);
    QTest::keyClick(scene(), Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(text->property("selectedText").toString(), afterDelete);
    QCOMPARE(m_proxy->selectedCount(), 1);
    QTest::keyClick(scene(), Qt::Key_Backspace);
    QCOMPARE(m_model->rowCount(), 2);
    text->setParentItem(nullptr);
    sceneItem(QStringLiteral("songList"))->forceActiveFocus();
    QTest::keyClick(scene(), Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(m_proxy->selectedCount(), 2);
}

void tst_MainWindow::filesAndFoldersAreDropped()
{
    QSignalSpy scans(m_model.get(), &MainModel::scanFolders);
    m_model->setSupportedExtensions({QStringLiteral("mp3")});
    QMimeData data;
    data.setUrls(
        {sample("lyrics.mp3"), QUrl::fromLocalFile(m_folder.path()), QUrl(QStringLiteral("http://127.0.0.1/a.mp3"))});
    const QPoint middle = scene()->rect().center();
    QDragEnterEvent enter(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(scene(), &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(scene(), &drop);
    QVERIFY(drop.isAccepted());
    QCOMPARE(m_model->urls(), QList<QUrl>{sample("lyrics.mp3")});
    QCOMPARE(scans.value(0).value(0).value<QList<QUrl>>(), QList<QUrl>{QUrl::fromLocalFile(m_folder.path())});
}

void tst_MainWindow::theDialogsRememberTheirFolders()
{
    m_model->setSupportedExtensions({QStringLiteral("mp3"), QStringLiteral("ogg")});
    const QString folder = QFileInfo(sample("lyrics.mp3").toLocalFile()).path();
    const auto openDialog = [this](const char *name) {
        action(name)->trigger();
        return m_window->findChild<QFileDialog *>();
    };
    QFileDialog *dialog = openDialog("actionAddFile");
    QCOMPARE(dialog->nameFilters(), QStringList{QStringLiteral("Audio files (*.mp3 *.ogg)")});
    dialog->reject();
    QTRY_VERIFY(!m_window->findChild<QFileDialog *>());
    QVERIFY(!QSettings().contains(QStringLiteral("lastFileDir")));
    dialog = openDialog("actionAddFile");
    emit dialog->filesSelected({sample("lyrics.mp3").toLocalFile(), sample("plain.flac").toLocalFile()});
    dialog->reject();
    QCOMPARE(m_model->rowCount(), 2);
    QCOMPARE(QSettings().value(QStringLiteral("lastFileDir")).toString(), folder);
    QTRY_VERIFY(!m_window->findChild<QFileDialog *>());
    dialog = openDialog("actionAddFile");
    QCOMPARE(dialog->directory().absolutePath(), folder);
    dialog->reject();
    QTRY_VERIFY(!m_window->findChild<QFileDialog *>());

    QSignalSpy scans(m_scanner.get(), &FolderScanner::found);
    m_scanner->setTypes({QStringLiteral("flac")});
    dialog = openDialog("actionAddFolder");
    emit dialog->fileSelected(folder);
    dialog->reject();
    QCOMPARE(QSettings().value(QStringLiteral("lastFolderDir")).toString(), folder);
    QVERIFY(scans.wait());
    QVERIFY(scans.at(0).at(0).value<QList<QUrl>>().contains(sample("plain.flac")));
}

void tst_MainWindow::aSongIsTakenToClipboardAndBrowser()
{
    BrowserStandIn browser;
    QClipboard *clipboard = QGuiApplication::clipboard();
    addCopies(2);
    m_model->itemAt(1)->setEditedLyricsTag(QStringLiteral("la"));
    m_window->copyPathToClipboard(1);
    QCOMPARE(clipboard->text(), m_model->itemAt(1)->url().toLocalFile());
    m_window->listLyricsToClipboard(m_model->itemAt(1)->id());
    m_window->listLyricsToClipboard(m_model->itemAt(0)->id()); // no lyrics
    m_window->listLyricsToClipboard(m_model->itemAt(0)->id() + 65536);
    m_window->copyPathToClipboard(-1);
    m_window->copyPathToClipboard(2);
    QCOMPARE(clipboard->text(), QStringLiteral("la"));
    m_window->searchLyricsInBrowser(0); // no names
    m_window->searchLyricsInBrowser(7);
    m_window->searchLyricsInBrowser(QUrl(QStringLiteral("file:///nowhere.mp3")));
    QCOMPARE(browser.urls, QList<QUrl>());
    m_model->itemAt(0)->setTitleTag(QStringLiteral("R&B"));
    m_model->itemAt(1)->setTitleTag(QStringLiteral("T"));
    m_model->itemAt(1)->setArtistTag(QStringLiteral("A"));
    m_window->searchLyricsInBrowser(0);
    m_settings->setSearchProvider(QStringLiteral("Yahoo"));
    m_window->searchLyricsInBrowser(m_model->itemAt(1)->url());
    QCOMPARE(browser.urls.size(), 2);
    QVERIFY(browser.urls.at(0).toEncoded().endsWith("/search?q=R%26B"));
    QVERIFY(browser.urls.at(1).toEncoded().endsWith("/search?p=A%20T"));
    m_window->on_actionFacebook_triggered(); // there is no site of the maker
    QCOMPARE(browser.urls.size(), 2);
    QSettings().setValue(QStringLiteral("endpoints/Maker"), QStringLiteral("https://127.0.0.1"));
    reloadEndpoints();
    m_window->on_actionFacebook_triggered();
    m_window->on_actionWebsite_triggered();
    QCOMPARE(browser.urls.at(2).toEncoded(),
             QByteArray("https://127.0.0.1/facebook/?zv_product=versewell&zv_version=1.5.6&zv_source=app"));
    QVERIFY(browser.urls.last().toEncoded().endsWith("&zv_source=app-statusbar"));
}

void tst_MainWindow::coloursFollowThePalette()
{
    const QColor before = scene()->rootObject()->property("color").value<QColor>();
    m_palette.setPalette(QPalette(Qt::darkBlue));
    QVERIFY(scene()->rootObject()->property("color").value<QColor>() != before);
    QCOMPARE(scene()->rootObject()->property("color").value<QColor>(), QPalette(Qt::darkBlue).color(QPalette::Window));
    m_palette.setPalette(QPalette());
}

void tst_MainWindow::quittingAsksWhileSongsAreSearchedFor_data()
{
    QTest::addColumn<int>("active");
    QTest::addColumn<QString>("answer");
    QTest::addColumn<bool>("quits");
    QTest::newRow("nothing is searched for") << 0 << QString() << true;
    QTest::newRow("yes") << 3 << "&Yes" << true;
    QTest::newRow("no") << 3 << "&No" << false;
    QTest::newRow("Escape") << 3 << "Escape" << false;
    QTest::newRow("the last search ends") << 3 << "end" << true;
}

void tst_MainWindow::quittingAsksWhileSongsAreSearchedFor()
{
    QFETCH(int, active);
    QFETCH(QString, answer);
    QFETCH(bool, quits);
    addCopies(3);
    for (int row = 0; row < active; ++row)
        m_model->itemAt(row)->setProcessState(ModelItem::ProcessWaiting);
    m_window->close();
    auto *question = m_window->findChild<ExitWidget *>();
    QCOMPARE(question != nullptr, active > 0);
    if (question) {
        QVERIFY(m_window->isVisible() && question->isVisible());
        m_window->quit_app(); // once more
        QVERIFY(labels().contains(QStringLiteral("Search for 3 songs is currently in progress.")));
        m_model->itemAt(0)->setProcessState(ModelItem::ProcessComplete);
        QVERIFY(labels().contains(QStringLiteral("Search for 2 songs is currently in progress.")));
        if (answer == QLatin1String("Escape"))
            QTest::keyClick(question, Qt::Key_Escape);
        for (QPushButton *button : question->findChildren<QPushButton *>()) {
            if (button->text() == answer)
                button->click();
        }
        if (answer == QLatin1String("end"))
            m_model->removeAll();
        QVERIFY(!question->isVisible());
    }
    QCOMPARE(m_window->isVisible(), !quits);
    QTimer::singleShot(quits ? 5000 : 100, qApp, [] { QCoreApplication::exit(1); });
    QCOMPARE(QCoreApplication::exec(), quits ? 0 : 1);
}

void tst_MainWindow::aDraftIsAskedAbout_data()
{
    QTest::addColumn<QString>("cause");
    QTest::addColumn<int>("rowsLeft");
    QTest::newRow("another row") << "row" << 3;
    QTest::newRow("several rows") << "several" << 3;
    QTest::newRow("the song is filtered away") << "filter" << 3;
    QTest::newRow("removed by key") << "key" << 2;
    QTest::newRow("the list is cleared") << "clear" << 0;
    QTest::newRow("removed with all that have lyrics") << "removeWithLyrics" << 2;
    QTest::newRow("the window is closed") << "close" << 3;
}

void tst_MainWindow::aDraftIsAskedAbout()
{
    QFETCH(QString, cause);
    QFETCH(int, rowsLeft);
    LyricsEdit *edit = m_window->lyricsEdit();
    addCopies(3);
    const QUrl url = m_model->itemAt(1)->url();
    m_model->itemAt(1)->setEditedLyricsTag(QStringLiteral("old"));
    const auto beginDraft = [&] {
        m_proxy->setCurrentIndex(-1);
        m_proxy->setCurrentIndex(1);
        edit->begin(m_model->itemAt(1));
        edit->setText(QStringLiteral("new"));
    };
    const auto act = [&] {
        if (cause == QLatin1String("row"))
            m_proxy->setCurrentIndex(0);
        else if (cause == QLatin1String("several"))
            m_proxy->selectAll();
        else if (cause == QLatin1String("filter"))
            m_proxy->setShowFound(false);
        else if (cause == QLatin1String("key"))
            QTest::keyClick(scene(), Qt::Key_Delete);
        else if (cause == QLatin1String("clear"))
            action("actionClearList")->trigger();
        else if (cause == QLatin1String("removeWithLyrics"))
            action("actionRemoveWithLyrics")->trigger();
        else
            m_window->close();
    };
    const auto answer = [this](QMessageBox::StandardButton button) {
        QTRY_VERIFY(m_window->findChild<QMessageBox *>());
        m_window->findChild<QMessageBox *>()->button(button)->click();
        QTRY_VERIFY(!m_window->findChild<QMessageBox *>());
        QApplication::setActiveWindow(m_window.get());
    };
    beginDraft();
    act();
    answer(QMessageBox::Cancel);
    QTest::qWait(0);
    QCOMPARE(edit->text(), QStringLiteral("new"));
    QCOMPARE(m_model->rowCount(), 3);
    QVERIFY(m_window->isVisible() && !m_window->findChild<QMessageBox *>());
    QCOMPARE(m_proxy->currentItem(), m_model->itemAt(1));
    QCOMPARE(m_proxy->selectedIds(), QVector<quint16>{m_model->itemAt(1)->id()});
    act();
    answer(QMessageBox::Discard);
    QVERIFY(!edit->active());
    QCOMPARE(m_model->rowCount(), rowsLeft);
    QCOMPARE(m_window->isVisible(), cause != QLatin1String("close"));
    if (rowsLeft < 3 || !m_window->isVisible())
        return;
    QCOMPARE(m_model->itemAt(1)->lyricsTag(), QStringLiteral("old"));
    m_proxy->setShowFound(true);
    beginDraft();
    act();
    answer(QMessageBox::Save);
    QTRY_COMPARE(m_model->itemAt(1)->processState(), ModelItem::ProcessComplete);
    MainModel again;
    again.setReaderProgram(QStringLiteral(VERSEWELL_READER));
    again.add({url});
    QTRY_COMPARE(again.itemAt(0)->lyricsTag(), QStringLiteral("new"));
}

void tst_MainWindow::aRightClickAwayFromADraftAsksAndOpensNoMenu()
{
    LyricsEdit *edit = m_window->lyricsEdit();
    addCopies(3);
    m_proxy->setCurrentIndex(0);
    edit->begin(m_model->itemAt(0));
    edit->setText(QStringLiteral("new"));
    QTest::mouseClick(scene(), Qt::RightButton, {}, QPoint(150, 150));
    QTRY_VERIFY(m_window->findChild<QMessageBox *>());
    QVERIFY(!m_window->findChild<QQuickWidget *>()
                 ->rootObject()
                 ->findChild<QObject *>(QStringLiteral("songMenu"))
                 ->property("__popupVisible")
                 .toBool());
    edit->cancel(); // behind the question, whose answer counts nevertheless
    m_window->findChild<QMessageBox *>()->button(QMessageBox::Save)->click();
    QCOMPARE(m_model->itemAt(0)->lyricsTag(), QStringLiteral("new"));
    QTRY_COMPARE(m_model->itemAt(0)->processState(), ModelItem::ProcessComplete);
}

void tst_MainWindow::escapeOutsideTheLyricsAsksFirst()
{
    LyricsEdit *edit = m_window->lyricsEdit();
    addCopies(1);
    m_proxy->setCurrentIndex(0);
    edit->begin(m_model->itemAt(0));
    edit->setText(QStringLiteral("new"));
    sceneItem(QStringLiteral("songList"))->forceActiveFocus();
    QTest::keyClick(m_window->windowHandle(), Qt::Key_Escape);
    QTRY_VERIFY(m_window->findChild<QMessageBox *>());
    m_window->findChild<QMessageBox *>()->button(QMessageBox::Cancel)->click();
    QCOMPARE(edit->text(), QStringLiteral("new"));
    QTRY_VERIFY(!m_window->findChild<QMessageBox *>());
    QApplication::setActiveWindow(m_window.get());
    edit->cancel();
}

void tst_MainWindow::anUnchangedDraftGoesQuietly()
{
    LyricsEdit *edit = m_window->lyricsEdit();
    addCopies(3);
    m_proxy->setCurrentIndex(1);
    edit->begin(m_model->itemAt(1));
    m_model->removeRows(0, 1); // another song goes: the edited one is still shown
    QTest::qWait(0);
    QVERIFY(edit->active());
    m_proxy->setCurrentIndex(1);
    QTRY_VERIFY(!edit->active());
    edit->begin(m_model->itemAt(1));
    edit->setText(QStringLiteral("draft"));
    m_model->setSearch(nullptr);
    m_model->removeRows(1, 1); // past all questions
    QTRY_VERIFY(!edit->active());
    QVERIFY(!m_window->findChild<QMessageBox *>());
}

void tst_MainWindow::rowsAreSelectedHiddenAndRemovedByKey()
{
    m_model->add({sample("lyrics.mp3"), sample("untagged.mp3"), sample("plain.flac")});
    QTRY_VERIFY(m_model->itemAt(2)->tagsLoaded());
    QWidget *scene = m_window->findChild<QQuickWidget *>();
    QTest::keyClick(scene, Qt::Key_L, Qt::ControlModifier);
    QCOMPARE(m_proxy->rowCount(), 2);
    QTest::keyClick(scene, Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(m_proxy->selectedCount(), 2);
    QTest::keyClick(scene, Qt::Key_Delete);
    QCOMPARE(m_model->urls(), QList<QUrl>{sample("lyrics.mp3")});
    QTest::keyClick(scene, Qt::Key_L, Qt::ControlModifier);
    QCOMPARE(m_proxy->rowCount(), 1);
}

void tst_MainWindow::theListIsSavedWhenThatIsWanted_data()
{
    QTest::addColumn<bool>("wanted");
    QTest::newRow("wanted") << true;
    QTest::newRow("not wanted") << false;
}

void tst_MainWindow::theListIsSavedWhenThatIsWanted()
{
    QFETCH(bool, wanted);
    const QTemporaryDir folder;
    const QString odd = folder.filePath(QStringLiteral("#1, 100%41\n.mp3"));
    QVERIFY(QFile::copy(sample("untagged.mp3").toLocalFile(), odd));
    const QList<QUrl> urls{QUrl::fromLocalFile(odd), sample("plain.flac")};
    m_settings->setSaveFilesList(wanted);
    m_model->add(urls);
    m_window.reset();
    QCOMPARE(QSettings().value(QStringLiteral("saveFilesList")).toBool(), wanted);
    const QStringList saved = QSettings().value(QStringLiteral("filesList")).toStringList();
    QCOMPARE(QUrl::fromStringList(saved), wanted ? urls : QList<QUrl>());
}

QTEST_MAIN(tst_MainWindow)
#include "tst_mainwindow.moc"
