// SPDX-License-Identifier: MIT
#include "network/Endpoints.h"
#include "support/TestTable.h"
#include "support/WindowStage.h"
#include "tags/TagWriter.h"
#include "ui/ExitWidget.h"

#include <QAction>
#include <QClipboard>
#include <QDesktopServices>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QScreen>
#include <QSettings>
#include <QSignalSpy>
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

// Opens pages in place of the browser.
class BrowserStandIn : public QObject
{
    Q_OBJECT

public:
    BrowserStandIn() { QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "open"); }
    ~BrowserStandIn() override { QDesktopServices::unsetUrlHandler(QStringLiteral("https")); }

    QList<QByteArray> pages;

public slots:
    void open(const QUrl &url) { pages.append(url.toEncoded()); }
};

} // namespace

class tst_MainWindow : public QObject, private WindowStage
{
    Q_OBJECT

private slots:
    void init()
    {
        QSettings().clear();
        reloadEndpoints();
        warnings.clear();
        m_handler = qInstallMessageHandler(noteWarnings);
        makeParts();
        openWindow(this);
    }

    void cleanup()
    {
        m_window.reset();
        m_proxy.reset();
        m_model.reset();
        qInstallMessageHandler(m_handler);
        QCOMPARE(warnings.filter("qml"_s), QStringList());
    }

    void theSceneShowsTheSongs()
    {
        QCOMPARE(m_window->sceneErrors(), QString());
        m_model->add({sample("lyrics.mp3"), sample("untagged.mp3")});
        QTRY_COMPARE(song(1)->processState(), ModelItem::ProcessNotSuitable);
        m_proxy->setCurrentIndex(0);
        QCOMPARE(textOf("lyricsText"), song(0)->lyricsTag());
        m_proxy->setCurrentIndex(1);
        song(1)->setProcessState(ModelItem::ProcessComplete);
        song(1)->setErrorString("<i>the site is down</i>"_s);
        QCOMPARE(textOf("stateLine"), "<i>the site is down</i>"_s);
        for (const char *name : {"lyricsText", "stateLine"})
            QCOMPARE(part(name)->property("textFormat").toInt(), int(Qt::PlainText));
        m_model->removeAll();
        QTRY_VERIFY(!part("lyricsText")->isVisible());
    }

    void theKeyboardReachesListLyricsAndButtons()
    {
        listSamples({"lyrics.mp3", "untagged.mp3", "plain.flac"});
        song(0)->setEditedLyricsTag("la\n"_s.repeated(500));
        QQuickItem *list = part("songList");
        QQuickItem *lyrics = part("lyricsText");
        const auto top = [lyrics] {
            return lyrics->mapToScene({0, 0}).y();
        };
        // The way round leads through the window's own buttons, in both directions.
        const auto goTo = [this](QQuickItem *item, Qt::Key key) {
            bool reachedGear = false;
            for (int tabs = 0; tabs < 40 && focusItem() != item; ++tabs) {
                press(key);
                reachedGear = reachedGear || QApplication::focusWidget()->objectName() == QLatin1String("gearButton");
            }
            return focusItem() == item && reachedGear;
        };
        // Not a button inside a row.
        const auto currentRow = [list] {
            return list->property("currentItem").value<QQuickItem *>();
        };
        press(Qt::Key_End);
        QCOMPARE(m_proxy->currentIndex(), 2);
        press(Qt::Key_Up);
        press(Qt::Key_Home);
        QCOMPARE(m_proxy->currentIndex(), 0);
        const double atBeginning = top();
        QVERIFY(!goTo(lyrics, Qt::Key_Tab) && focusItem() == lyrics);
        press(Qt::Key_PageDown);
        QVERIFY(top() < atBeginning - 100);
        QVERIFY(goTo(currentRow(), Qt::Key_Tab));
        QVERIFY(goTo(lyrics, Qt::Key_Backtab));
        QVERIFY(!goTo(currentRow(), Qt::Key_Backtab) && focusItem() == currentRow());
        press(Qt::Key_Down);
        QCOMPARE(m_proxy->currentIndex(), 1);
        QCOMPARE(top(), atBeginning); // another song begins at its beginning
    }

    void keysOfTheEditWorkFromTheList()
    {
        listSamples({"lyrics.mp3"});
        m_window->findChild<QToolButton *>("gearButton"_s)->setFocus();
        press(Qt::Key_F2);
        QTRY_VERIFY(m_window->lyricsEdit()->active());
        QVERIFY(scene()->hasFocus() && part("lyricsText")->hasActiveFocus());
        part("titleField")->forceActiveFocus();
        press(Qt::Key_X);
        press(Qt::Key_Escape);
        QVERIFY(m_window->lyricsEdit()->active()); // the first Escape was the field's
        QVERIFY(!part("titleField")->property("pending").toBool());
        part("songList")->forceActiveFocus();
        press(Qt::Key_Escape);
        QVERIFY(!m_window->lyricsEdit()->active());
    }

    // A dialog that has just been opened need not have the keyboard yet.
    void keysWaitBehindADialog()
    {
        addCopies(2);
        action("actionAddFile")->trigger();
        m_window->windowHandle()->requestActivate();
        QTRY_COMPARE(QGuiApplication::focusWindow(), m_window->windowHandle());
        press(Qt::Key_Delete);
        press(Qt::Key_F2);
        press(Qt::Key_O, Qt::ControlModifier);
        QCOMPARE(m_model->rowCount(), 2);
        QVERIFY(!m_window->lyricsEdit()->active());
        QCOMPARE(m_window->findChildren<QFileDialog *>().size(), 1);
        m_window->findChild<QFileDialog *>()->reject();
        QTRY_VERIFY(!m_window->findChild<QFileDialog *>());
        press(Qt::Key_F2);
        QVERIFY(m_window->lyricsEdit()->active());
    }

    void theStatusBarSaysWhatIsGoingOn()
    {
        const auto *progress = m_window->findChild<QProgressBar *>();
        QTRY_VERIFY(!progress->isVisible());
        addCopies(4);
        for (int row = 0; row < 4; ++row)
            song(row)->setProcessState(ModelItem::ProcessWaiting);
        QTRY_VERIFY(labels().contains("Searching... 4 left..."_s));
        song(0)->setProcessState(ModelItem::ProcessComplete);
        QTRY_VERIFY(labels().contains("Searching... 3 left..."_s));
        QTRY_VERIFY(progress->isVisible());
        QTRY_COMPARE(progress->maximum() - progress->value(), 3);
        QVERIFY(progress->value() >= 1);
        m_model->removeAll();
        QTRY_VERIFY(!progress->isVisible());
    }

    void noticesStandSideBySide()
    {
        addCopies(3);
        m_window->showSettingsDamaged("/home/<b>x</b>"_s);
        emit m_model->filesLeftOut(4);
        emit m_model->filesLeftOut(3);
        m_proxy->selectAll();
        action("actionExportLyrics")->trigger();
        QTRY_VERIFY(labels().contains("There are no lyrics to export"_s));
        giveLyricsToAll();
        // A folder stands where the text file would.
        QVERIFY(QDir(m_songs->path()).mkdir("1.txt"_s));
        action("actionExportLyrics")->trigger();
        QTRY_VERIFY(labels().contains("The lyrics could not be written to "_s + m_songs->path("1.txt"_s)));
        QVERIFY(QFile::exists(m_songs->path("2.txt"_s)));
        QVERIFY(labels().contains("The list is full. Files left out: 7"_s));
        QCOMPARE(labels().filter("settings file"_s).size(), 1);
        QVERIFY(m_window->minimumSizeHint().width() < 640);
    }

    void anExportIsNotCutOffByTheEnd()
    {
        addCopies(3);
        giveLyricsToAll();
        action("actionExportLyrics")->trigger();
        m_window.reset();
        QVERIFY(TagWriter::waitForQueued(std::chrono::seconds(10)));
        QCOMPARE(QDir(m_songs->path()).entryList({"*.txt"_s}).size(), 3);
    }

    void geometryAndPaneComeBack_data()
    {
        QTest::addColumn<QRect>("place");
        QTest::addColumn<bool>("maximized");
        addRow("a place on the screen", QRect(50, 60, 700, 500), false);
        addRow("maximized", QRect(50, 60, 700, 500), true);
        addRow("off the screen", QRect(5000, 4000, 700, 500), false);
    }

    void geometryAndPaneComeBack()
    {
        QFETCH(QRect, place);
        QFETCH(bool, maximized);
        m_window->setGeometry(place);
        if (maximized)
            m_window->showMaximized();
        scene()->rootObject()->setProperty("listWidth", 321);
        m_window.reset();
        m_model->add({sample("lyrics.mp3")});
        openWindow(this);
        QTRY_COMPARE(m_window->isMaximized(), maximized);
        QTRY_COMPARE(m_window->normalGeometry().size(), place.size());
        const QRect screen = m_window->screen()->availableGeometry();
        QVERIFY(screen.intersects(m_window->geometry()));
        if (screen.contains(place))
            QCOMPARE(m_window->normalGeometry(), place);
        QTRY_COMPARE(textOf("lyricsText"), song(0)->lyricsTag());
        QCOMPARE(scene()->rootObject()->property("listWidth").toInt(), 321);
        QCOMPARE(part("songList")->width(), 321.0);
    }

    // As one does whose words take another line at this width.
    void aSceneThatNeedsMoreRoomWhileItIsShownFillsIt()
    {
        const QQuickItem *root = scene()->rootObject();
        m_window->hide();
        m_window->resize(700, 420);
        connect(root, &QQuickItem::widthChanged, scene(), [this] { scene()->setMinimumHeight(500); });
        m_window->show();
        QCOMPARE(scene()->height(), 500);
        QCOMPARE(root->height(), 500.0);
    }

    void nothingIsCutAtTheLeastSize()
    {
        addCopies(1);
        const QSize screen = m_window->screen()->availableSize();
        QCOMPARE(m_window->size().boundedTo(screen), m_window->size());
        scene()->rootObject()->setProperty("listWidth", 900);
        m_window->resize(1, 1);
        QTRY_COMPARE(m_window->size(), m_window->minimumSize());
        QTRY_VERIFY(part("lyricsItem")->mapRectToScene(part("lyricsItem")->boundingRect()).right() <= scene()->width());
        QVERIFY(part("songList")->width() >= 200 && part("lyricsItem")->width() >= 260);
        QVERIFY(part("lyricsItem")->height() > 180); // with some words
        QVERIFY(m_window->width() <= 640 && m_window->height() <= 480);
    }

    void theMenusHaveTheirActions()
    {
        QStringList menus;
        for (const QAction *title : m_window->menuBar()->actions()) {
            QStringList entries;
            for (const QAction *entry : title->menu()->actions())
                entries.append(entry->text() + entry->shortcut().toString());
            menus.append(title->text() + QLatin1String(": ") + entries.join(QLatin1Char('|')));
        }
        QCOMPARE(menus, QStringList(
                            {"&File: Add fileCtrl+O|Add folder||Export lyrics to TXT file||Preferences|Quit"_s,
                             "&Edit: Select allCtrl+A||Remove selectedDel|Remove with lyricsMeta+Alt+Del||Clear list"_s,
                             "&View: Hide file(s) with lyricsCtrl+L"_s, "&Help: About"_s}));
        m_proxy->setShowFound(false);
        QVERIFY(action("actionHideWithLyrics")->isChecked());
    }

    void textsHaveTheirKeysForThemselves_data()
    {
        addTextColumns("element", "afterDelete");
        addRow("a field", "TextInput {", "bc");
        addRow("a text that is edited", "TextEdit {", "bc");
        addRow("a text that is only read", "TextEdit { readOnly: true; selectByKeyboard: true;", "abc");
    }

    void textsHaveTheirKeysForThemselves()
    {
        QFETCH(QString, element);
        QFETCH(QString, afterDelete);
        addCopies(2);
        QQmlComponent component(scene()->engine());
        component.setData("import QtQuick 2.15\n" + element.toUtf8() + " text: 'abc' }", QUrl());
        const std::unique_ptr<QObject> object(component.create());
        auto *text = qobject_cast<QQuickItem *>(object.get());
        QVERIFY(text);
        text->setParentItem(scene()->rootObject());
        text->forceActiveFocus();
        text->setProperty("cursorPosition", 0);
        press(Qt::Key_Delete);
        QCOMPARE(m_model->rowCount(), 2);
        QCOMPARE(text->property("text").toString(), afterDelete);
        press(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(text->property("selectedText").toString(), afterDelete);
        QCOMPARE(m_proxy->selectedCount(), 1);
        text->setParentItem(nullptr);
        part("songList")->forceActiveFocus();
        press(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(m_proxy->selectedCount(), 2);
    }

    void filesAndFoldersAreDropped()
    {
        QSignalSpy scans(m_model.get(), &MainModel::scanFolders);
        m_model->setSupportedExtensions({"mp3"_s});
        const QUrl folder = QUrl::fromLocalFile(m_folder.path());
        QMimeData data;
        data.setUrls({sample("lyrics.mp3"), folder, QUrl("http://127.0.0.1/a.mp3"_s)});
        const QPoint middle = scene()->rect().center();
        QDragEnterEvent enter(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(scene(), &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(scene(), &drop);
        QVERIFY(drop.isAccepted());
        QTRY_COMPARE(scans.value(0).value(0).value<QList<QUrl>>(), QList<QUrl>{folder});
        QCOMPARE(m_model->urls(), QList<QUrl>{sample("lyrics.mp3")});
    }

    void theDialogsRememberTheirFolders()
    {
        m_model->setSupportedExtensions({"mp3"_s, "ogg"_s});
        m_scanner->setTypes({"flac"_s});
        QSignalSpy scans(m_scanner.get(), &FolderScanner::found);
        const QFileInfo file(sample("lyrics.mp3").toLocalFile());
        const auto use = [this](const char *opener, const std::function<void(QFileDialog *)> &choose) {
            action(opener)->trigger();
            auto *dialog = m_window->findChild<QFileDialog *>();
            choose(dialog);
            dialog->reject();
            QTRY_VERIFY(!m_window->findChild<QFileDialog *>());
        };
        const auto choosesNothing = [](const QFileDialog *) {
        };
        const auto beginsThere = [&](const QFileDialog *dialog) {
            QCOMPARE(dialog->directory().absolutePath(), file.path());
        };
        use("actionAddFile", choosesNothing);
        use("actionAddFolder", choosesNothing);
        QVERIFY(!QSettings().contains("lastFileDir"_s) && !QSettings().contains("lastFolderDir"_s));
        use("actionAddFile", [&](QFileDialog *dialog) {
            QCOMPARE(dialog->nameFilters(), QStringList{"Audio files (*.mp3 *.ogg)"_s});
            emit dialog->filesSelected({file.filePath(), sample("plain.flac").toLocalFile()});
        });
        QTRY_COMPARE(m_model->rowCount(), 2);
        use("actionAddFolder", [&](QFileDialog *dialog) { emit dialog->fileSelected(file.path()); });
        QTRY_VERIFY(scans.value(0).value(0).value<QList<QUrl>>().contains(sample("plain.flac")));
        use("actionAddFile", beginsThere);
        use("actionAddFolder", beginsThere);
    }

    void aSongIsTakenToClipboardAndBrowser()
    {
        BrowserStandIn browser;
        QClipboard *clipboard = QGuiApplication::clipboard();
        addCopies(2);
        song(1)->setEditedLyricsTag("la"_s);
        m_window->copyPathToClipboard(1);
        QCOMPARE(clipboard->text(), song(1)->url().toLocalFile());
        m_window->listLyricsToClipboard(song(1)->id());
        m_window->listLyricsToClipboard(song(0)->id()); // no lyrics
        m_window->listLyricsToClipboard(song(0)->id() + 65536);
        m_window->copyPathToClipboard(-1);
        m_window->copyPathToClipboard(2);
        QCOMPARE(clipboard->text(), "la"_s);
        m_window->searchLyricsInBrowser(0); // no names
        m_window->searchLyricsInBrowser(7);
        m_window->searchLyricsInBrowser(QUrl("file:///nowhere.mp3"_s));
        QVERIFY(browser.pages.isEmpty());
        song(0)->setTitleTag("R&B"_s);
        song(1)->setTitleTag("T"_s);
        song(1)->setArtistTag("A"_s);
        m_settings->setSearchProvider("Nosuch"_s);
        QVERIFY(textOf("browserButton").endsWith("Google"_s));
        m_window->searchLyricsInBrowser(0);
        m_settings->setSearchProvider("Yahoo"_s);
        QVERIFY(textOf("browserButton").endsWith("Yahoo"_s));
        m_window->searchLyricsInBrowser(song(1)->url());
        m_window->on_actionWebsite_triggered(); // there is no site of the maker
        QCOMPARE(browser.pages.size(), 2);
        QVERIFY(browser.pages.at(0).endsWith("/search?q=R%26B"));
        QVERIFY(browser.pages.at(1).endsWith("/search?p=A%20T"));
    }

    void withoutItsModuleThePreviewAloneIsLost()
    {
        QFile player(m_folder.path("Player.qml"_s));
        QVERIFY(player.open(QIODevice::WriteOnly) && player.write("import NoSuchModule 1.0\nMediaPlayer {}\n") > 0);
        player.close();
        listSamples({"lyrics.mp3"});
        part("audioPreview")->setProperty("playerDocument", QUrl::fromLocalFile(player.fileName()));
        QVERIFY(QMetaObject::invokeMethod(part("audioPreview"), "toggle"));
        QVERIFY(part("audioPreview")->property("missing").toBool());
        QVERIFY(!part("playButton")->isEnabled());
        QCOMPARE(textOf("lyricsText"), song(0)->lyricsTag());
        QCOMPARE(warnings.filter("\"NoSuchModule\" is not installed"_s).size(), warnings.size());
        warnings.clear();
    }

    void allSelectedSongsAreSearchedForAgain()
    {
        listGoneSongs(3000);
        QTRY_COMPARE(m_model->rowCount(), 3000);
        m_proxy->selectAll();
        press(Qt::Key_R, Qt::ControlModifier);
        m_model->removeRows(2999, 1); // perhaps before its turn
        for (int row = 0; row < 2999; ++row)
            QTRY_VERIFY(song(row)->processState() != ModelItem::ProcessIdle);
    }

    void theListKeepsItsPlaceWhenManySongsGo_data()
    {
        QTest::addColumn<int>("place");
        QTest::addColumn<int>("placeAfter");
        addRow("the current row is out of sight", 1500, 1500);
        addRow("the current row is seen", 3500, 1700); // thirty rows of 60 above it have gone
    }

    void theListKeepsItsPlaceWhenManySongsGo()
    {
        QFETCH(int, place);
        QFETCH(int, placeAfter);
        const QList<QUrl> urls = listGoneSongs(400);
        QVector<int> odd;
        for (int i = 1; i < urls.size(); i += 2)
            odd.append(i);
        m_proxy->setCurrentIndex(60);
        part("songList")->setProperty("contentY", place);
        QSignalSpy resets(m_proxy.get(), &QAbstractItemModel::modelReset);
        m_model->removeScattered(odd);
        QCOMPARE(resets.count(), 1);
        QCOMPARE(m_proxy->currentItem()->url(), urls.at(60));
        QTRY_COMPARE(part("songList")->property("contentY").toInt(), placeAfter);
        QCOMPARE(part("songList")->property("currentIndex").toInt(), 30);
    }

    void theSongAfterOneThatGoesIsSelected_data()
    {
        addTextColumns("cause");
        addRow("hidden with all that have lyrics", "actionHideWithLyrics");
        addRow("removed with all that have lyrics", "actionRemoveWithLyrics");
        addRow("found while such songs are hidden", "");
    }

    void theSongAfterOneThatGoesIsSelected()
    {
        QFETCH(QString, cause);
        addCopies(3);
        const ModelItem *next = song(2);
        m_proxy->setCurrentIndex(1);
        if (cause.isEmpty())
            m_proxy->setShowFound(false);
        song(1)->setFoundLyricsTag({}, {}, "la"_s);
        if (!cause.isEmpty())
            action(qPrintable(cause))->trigger();
        if (cause == "actionRemoveWithLyrics"_s)
            answer(QMessageBox::Discard); // they are in no file
        QTRY_COMPARE(m_proxy->selectedItem(), next);
        QTRY_VERIFY(part("lyricsText")->isVisible());
    }

    void theKeyboardOutlivesWhatHadIt_data()
    {
        addTextColumns("holder", "heir");
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        const Qt::KeyboardModifiers none;
        const Qt::KeyboardModifiers control = Qt::ControlModifier;
        addRow("Play, when all songs are selected", "playButton", "songList", Qt::Key_A, control);
        addRow("a field, when all songs are hidden", "artistField", "songList", Qt::Key_L, control);
        addRow("Save", "saveButton", "lyricsText", Qt::Key_Return, none);
        addRow("Cancel", "cancelButton", "lyricsText", Qt::Key_Space, none);
        addRow("the least size of text", "smallerButton", "lyricsText", Qt::Key_Space, none);
    }

    void theKeyboardOutlivesWhatHadIt()
    {
        QFETCH(QString, holder);
        QFETCH(QString, heir);
        QFETCH(Qt::Key, key);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        addCopies(2);
        giveLyricsToAll();
        beginDraft(0);
        m_settings->setLyricsFontSize(7);
        if (heir == "songList"_s)
            m_window->lyricsEdit()->cancel();
        part(qPrintable(holder))->forceActiveFocus();
        QTRY_VERIFY(part(qPrintable(holder))->hasActiveFocus());
        press(key, modifiers);
        const QQuickItem *inheriting = part(qPrintable(heir));
        QTRY_VERIFY(inheriting == focusItem() || inheriting->isAncestorOf(focusItem()));
    }

    void whatIsTypedIsSearchedFor()
    {
        BrowserStandIn browser;
        addCopies(3);
        for (int row = 0; row < 3; ++row) {
            m_proxy->setCurrentIndex(row);
            part("titleField")->forceActiveFocus();
            press(Qt::Key_T);
        }
        m_window->searchLyricsInBrowser(2);
        QVERIFY(browser.pages.value(0).endsWith("q=t"));
        m_proxy->extendSelection(1);
        press(Qt::Key_R, Qt::ControlModifier);
        QCOMPARE(song(1)->titleTag(), "t"_s);
        QCOMPARE(song(0)->titleTag(), QString());
    }

    void quittingAsksWhileSongsAreSearchedFor_data()
    {
        QTest::addColumn<int>("active");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("quits");
        addRow("nothing is searched for", 0, "", true);
        addRow("yes", 3, "&Yes", true);
        addRow("no", 3, "&No", false);
        addRow("Escape", 3, "Escape", false);
        addRow("the last search ends", 3, "end", true);
    }

    void quittingAsksWhileSongsAreSearchedFor()
    {
        QFETCH(int, active);
        QFETCH(QString, answer);
        QFETCH(bool, quits);
        addCopies(3);
        for (int row = 0; row < active; ++row)
            song(row)->setProcessState(ModelItem::ProcessWaiting);
        m_window->close();
        auto *box = m_window->findChild<ExitWidget *>();
        QCOMPARE(box != nullptr, active > 0);
        if (box) {
            QVERIFY(m_window->isVisible() && box->isVisible());
            m_window->quit_app(); // once more
            QVERIFY(labels().contains("Search for 3 songs is currently in progress."_s));
            song(0)->setProcessState(ModelItem::ProcessComplete);
            QVERIFY(labels().contains("Search for 2 songs is currently in progress."_s));
            if (answer == "Escape"_s)
                QTest::keyClick(box, Qt::Key_Escape);
            for (QPushButton *button : box->findChildren<QPushButton *>()) {
                QVERIFY(button->icon().isNull());
                if (button->text() == answer)
                    button->click();
            }
            if (answer == "end"_s)
                m_model->removeAll();
            QVERIFY(!box->isVisible());
        }
        QTimer::singleShot(quits ? 5000 : 100, qApp, [] { QCoreApplication::exit(1); });
        QCOMPARE(QCoreApplication::exec(), quits ? 0 : 1);
        QCOMPARE(m_window->isVisible(), !quits);
        QVERIFY(!m_window->findChild<ExitWidget *>()); // a kept one would keep its language
    }

    void aDraftIsAskedAbout_data()
    {
        QTest::addColumn<QString>("cause");
        QTest::addColumn<int>("rowsLeft");
        addRow("another row", "row", 3);
        addRow("several rows", "several", 3);
        addRow("the song is filtered away", "filter", 3);
        addRow("removed by key", "key", 2);
        addRow("the list is cleared", "actionClearList", 0);
        addRow("removed with all that have lyrics", "actionRemoveWithLyrics", 2);
        addRow("Escape outside of the lyrics", "Escape", 3);
        addRow("the window is closed", "close", 3);
    }

    void aDraftIsAskedAbout()
    {
        QFETCH(QString, cause);
        QFETCH(int, rowsLeft);
        LyricsEdit *edit = m_window->lyricsEdit();
        addCopies(3);
        const QUrl url = song(1)->url();
        song(1)->setEditedLyricsTag("old"_s);
        beginDraft(1);
        part("artistField")->forceActiveFocus();
        press(Qt::Key_N);
        lose(cause);
        answer(QMessageBox::Cancel);
        QVERIFY(part("lyricsText")->hasActiveFocus());
        press(Qt::Key_Backspace); // for the draft, not for the list
        press(Qt::Key_X);
        QVERIFY(edit->modified() && edit->text().contains(QLatin1Char('x')));
        QCOMPARE(m_model->rowCount(), 3);
        QVERIFY(m_window->isVisible() && !question());
        QCOMPARE(m_proxy->currentItem(), song(1));
        QCOMPARE(m_proxy->selectedIds(), QVector<quint16>{song(1)->id()});
        QCOMPARE(textOf("artistField"), "n"_s); // a name that was typed is still there as well
        lose(cause);
        answer(QMessageBox::Discard);
        if (rowsLeft < 3 || cause == "close"_s)
            answer(QMessageBox::Discard); // of the name that was typed
        QVERIFY(!edit->active());
        QCOMPARE(m_model->rowCount(), rowsLeft);
        QCOMPARE(m_window->isVisible(), cause != "close"_s);
        if (rowsLeft < 3 || !m_window->isVisible())
            return;
        QCOMPARE(song(1)->lyricsTag(), "old"_s);
        m_proxy->setShowFound(true);
        beginDraft(1);
        part("artistField")->forceActiveFocus();
        press(Qt::Key_Z);
        lose(cause);
        answer(QMessageBox::Save);
        QTRY_COMPARE(song(1)->processState(), ModelItem::ProcessComplete);
        MainModel again;
        again.setReaderProgram(QStringLiteral(VERSEWELL_READER));
        again.add({url});
        QTRY_COMPARE(again.itemAt(0)->lyricsTag(), "new"_s);
        QCOMPARE(again.itemAt(0)->artistTag(), "z"_s);
    }

    void aRightClickAwayFromADraftAsksAndOpensNoMenu()
    {
        addCopies(3);
        beginDraft(0);
        QTest::mouseClick(scene(), Qt::RightButton, {}, QPoint(150, 150));
        QTRY_VERIFY(question());
        const auto *menu = scene()->rootObject()->findChild<QObject *>("songMenu"_s);
        QVERIFY(!menu->property("__popupVisible").toBool());
        m_window->lyricsEdit()->cancel(); // behind the question, whose answer counts nevertheless
        question()->button(QMessageBox::Save)->click();
        QCOMPARE(song(0)->lyricsTag(), "new"_s);
        QTRY_COMPARE(song(0)->processState(), ModelItem::ProcessComplete);
    }

    void anUnchangedDraftGoesQuietly()
    {
        LyricsEdit *edit = m_window->lyricsEdit();
        addCopies(3);
        m_proxy->setCurrentIndex(1);
        edit->begin(song(1));
        m_model->removeRows(0, 1); // another song goes: the edited one is still shown
        QTest::qWait(0);
        QVERIFY(edit->active());
        m_proxy->setCurrentIndex(1);
        QTRY_VERIFY(!edit->active());
        beginDraft(1);
        m_model->removeRows(1, 1); // past all questions
        QTRY_VERIFY(!edit->active());
        QVERIFY(!question());
    }

    void unsavedLyricsAreAskedAbout_data()
    {
        QTest::addColumn<QString>("cause");
        QTest::addColumn<int>("rowsLeft");
        addRow("removed by key", "key", 3);
        addRow("the list is cleared", "actionClearList", 1);
        addRow("removed with all that have lyrics", "actionRemoveWithLyrics", 3);
        addRow("the window is closed", "close", 4);
    }

    void unsavedLyricsAreAskedAbout()
    {
        QFETCH(QString, cause);
        QFETCH(int, rowsLeft);
        addCopies(3);
        QVERIFY(QFile::remove(song(1)->url().toLocalFile()));
        song(1)->setEditedLyricsTag("nowhere else"_s);
        QVERIFY(m_model->writeTags(song(1)->id()));
        QTRY_VERIFY(song(1)->unsaved());
        m_proxy->setCurrentIndex(1);
        lose(cause);
        answer(QMessageBox::Cancel);
        QCOMPARE(m_model->rowCount(), 3);
        QVERIFY(m_window->isVisible());
        lose(cause);
        // What comes or is selected behind the question is not what it is about.
        m_model->add({sample("lyrics.mp3")});
        QTRY_VERIFY(song(3)->tagsLoaded());
        m_proxy->selectAll();
        answer(QMessageBox::Discard);
        QCOMPARE(m_model->rowCount(), rowsLeft);
        QCOMPARE(m_window->isVisible(), cause != "close"_s);
        QCOMPARE(m_model->unsavedIds().size(), 0); // nothing is left to be kept elsewhere
        if (cause == "key"_s)                      // the next one takes the place, and the keyboard goes on with it
            QCOMPARE(m_proxy->selectedIds(), QVector<quint16>{song(1)->id()});
    }

    void whatIsTypedIsTakenOverByNoQuestion()
    {
        addCopies(2);
        m_proxy->setCurrentIndex(0);
        part("artistField")->forceActiveFocus();
        press(Qt::Key_N);
        m_proxy->setCurrentIndex(1);
        for (const QString &cause : {"close"_s, "actionClearList"_s}) {
            lose(cause);
            answer(QMessageBox::Cancel);
            QCOMPARE(song(0)->artistTag(), QString());
        }
        m_proxy->setCurrentIndex(0);
        QCOMPARE(textOf("artistField"), "n"_s);
        part("artistField")->forceActiveFocus();
        press(Qt::Key_Escape);
        m_window->close();
        QVERIFY(!question() && !m_window->isVisible());
    }

    // Nobody is asked when the program is told to end.
    void whatIsTypedGoesToItsSongWhenTheWindowGoes()
    {
        addCopies(1);
        beginDraft(0);
        part("artistField")->forceActiveFocus();
        press(Qt::Key_N);
        m_window.reset();
        QCOMPARE(song(0)->artistTag(), "n"_s);
        QCOMPARE(song(0)->lyricsTag(), "new"_s);
        QCOMPARE(m_model->unsavedIds().size(), 1);
    }

    void writesAreWaitedFor_data()
    {
        QTest::addColumn<bool>("succeeds");
        QTest::newRow("the write succeeds") << true;
        QTest::newRow("the write fails") << false;
    }

    void writesAreWaitedFor()
    {
        QFETCH(bool, succeeds);
        addCopies(3);
        if (!succeeds)
            QVERIFY(QFile::remove(song(2)->url().toLocalFile()));
        holdWrites();
        beginDraft(1);
        action("actionClearList")->trigger();
        QTRY_VERIFY(question());
        question()->button(QMessageBox::Save)->click();
        press(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(m_proxy->selectedCount(), 1); // nothing is done behind the wait, seen or not
        QTRY_VERIFY(question() && question()->text().contains("still being written"_s));
        QCOMPARE(m_model->rowCount(), 3);
        answer(QMessageBox::Cancel); // and the songs stay
        action("actionClearList")->trigger();
        holdWrites(); // another one begins meanwhile
        song(2)->setArtistTag("found"_s);
        QVERIFY(m_model->writeTags(song(2)->id()));
        m_disk.release();
        QTRY_VERIFY(!m_model->isWriting(song(1)->id()));
        QTest::qWait(100); // time to look whether it is all done
        QCOMPARE(m_model->rowCount(), 3);
        m_disk.release();
        if (!succeeds)
            answer(QMessageBox::Discard);
        QTRY_COMPARE(m_model->rowCount(), 0);
        QVERIFY(!question());
    }

    void aWriteThatBeginsBehindTheQuestionIsWaitedFor()
    {
        addCopies(2);
        song(0)->setArtistTag("new"_s);
        action("actionClearList")->trigger();
        holdWrites();
        QVERIFY(QFile::remove(song(1)->url().toLocalFile()));
        song(1)->setArtistTag("found"_s);
        QVERIFY(m_model->writeTags(song(1)->id()));
        answer(QMessageBox::Discard);
        QCOMPARE(m_model->rowCount(), 2);
        m_disk.release();
        answer(QMessageBox::Discard);
        QCOMPARE(m_model->rowCount(), 0);
    }

    void songsWhoseDiskIsAwayCanBeForgotten()
    {
        QVERIFY(!action("actionClearList")->isEnabled());
        m_model->keep({"/no such stick/album/song.mp3"_s});
        m_model->restore();
        QTRY_VERIFY(!m_model->isRestoring());
        QVERIFY(action("actionClearList")->isEnabled());
        action("actionClearList")->trigger();
        QVERIFY(m_model->urls().isEmpty() && !action("actionClearList")->isEnabled());
    }

    void rowsAreSelectedHiddenAndRemovedByKey()
    {
        listSamples({"lyrics.mp3", "untagged.mp3", "plain.flac"});
        press(Qt::Key_L, Qt::ControlModifier);
        press(Qt::Key_A, Qt::ControlModifier);
        press(Qt::Key_Delete);
        QCOMPARE(m_model->urls(), QList<QUrl>{sample("lyrics.mp3")});
        press(Qt::Key_L, Qt::ControlModifier);
        QCOMPARE(m_proxy->rowCount(), 1);
    }

    void theListIsSavedWhenThatIsWanted()
    {
        const QTemporaryDir folder;
        const QString odd = folder.filePath("#1, 100%41\n.mp3"_s);
        QVERIFY(QFile::copy(sample("untagged.mp3").toLocalFile(), odd));
        const QList<QUrl> urls{QUrl::fromLocalFile(odd), sample("plain.flac")};
        m_model->add(urls);
        for (const bool isWanted : {false, true}) {
            m_settings->setSaveFilesList(isWanted);
            openWindow(this);
            m_window.reset();
            const QStringList saved = QSettings().value("filesList"_s).toStringList();
            QCOMPARE(QUrl::fromStringList(saved), isWanted ? urls : QList<QUrl>());
        }
    }

private:
    QQuickWidget *scene() const { return m_window->findChild<QQuickWidget *>(); }
    // The details of a song are made from the event loop.
    QQuickItem *part(const char *name) const
    {
        QQuickItem *item = nullptr;
        const auto isMade = [&] {
            item = scene()->rootObject()->findChild<QQuickItem *>(QLatin1String(name));
            return item != nullptr;
        };
        return QTest::qWaitFor(isMade) ? item : nullptr;
    }
    QQuickItem *focusItem() const { return scene()->quickWindow()->activeFocusItem(); }
    QString textOf(const char *name) const { return part(name)->property("text").toString(); }
    QStringList labels() const
    {
        QStringList texts;
        for (const QLabel *label : m_window->findChildren<QLabel *>())
            texts.append(label->text());
        return texts;
    }
    // A key as it comes from the screen: to the window, which gives it to whoever has the keyboard.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(m_window->windowHandle(), key, modifiers);
    }
    void listSamples(const std::vector<const char *> &names)
    {
        QList<QUrl> urls;
        for (const char *name : names)
            urls.append(sample(name));
        m_model->add(urls);
        QTRY_VERIFY(song(urls.size() - 1)->tagsLoaded());
    }

    // Regular files, as far as the model is told.
    QList<QUrl> listGoneSongs(int count)
    {
        m_model->setAutoStart(false);
        QList<QUrl> urls;
        for (int i = 0; i < count; ++i)
            urls.append(QUrl::fromLocalFile("/gone/A - %1.mp3"_s.arg(i)));
        m_model->add(urls, MainModel::IsRegularFile);
        return urls;
    }

    void giveLyricsToAll()
    {
        for (int row = 0; row < m_model->rowCount(); ++row)
            song(row)->setEditedLyricsTag("la"_s);
        m_proxy->selectAll();
    }

    // What would lose a draft, or lyrics that are in no file.
    void lose(const QString &cause)
    {
        part("songList")->forceActiveFocus();
        if (cause == "row"_s)
            m_proxy->setCurrentIndex(0);
        else if (cause == "several"_s)
            m_proxy->selectAll();
        else if (cause == "filter"_s)
            m_proxy->setShowFound(false);
        else if (cause == "key"_s)
            press(Qt::Key_Delete);
        else if (cause == "Escape"_s)
            press(Qt::Key_Escape);
        else if (cause == "close"_s)
            m_window->close();
        else
            action(qPrintable(cause))->trigger();
    }

    // Answers the open question, after which the next one is there, or the window has the keyboard again.
    void answer(QMessageBox::StandardButton button)
    {
        QTRY_VERIFY(question() && question()->button(button));
        const QPointer<QMessageBox> answered = question();
        answered->button(button)->click();
        QTRY_VERIFY(!answered);
        if (question())
            return;
        m_window->activateWindow();
        QTRY_VERIFY(!m_window->isVisible() || QGuiApplication::focusWindow() == m_window->windowHandle());
    }

    QtMessageHandler m_handler = nullptr;
};

QTEST_MAIN(tst_MainWindow)
#include "tst_mainwindow.moc"
