// SPDX-License-Identifier: MIT
#include "ui/MainWindow.h"

#include "model/FolderScanner.h"
#include "model/MainModel.h"
#include "model/ProxyModel.h"
#include "settings/Settings.h"
#include "ui/AppPalette.h"

#include <QFile>
#include <QLabel>
#include <QQuickItem>
#include <QQuickWidget>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

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
    void theStatusBarSaysWhatIsGoingOn();
    void geometryAndPaneComeBack();
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

    QTemporaryDir m_folder;
    void openWindow();

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
    qputenv("QMLSCENE_DEVICE", "softwarecontext");
}

void tst_MainWindow::init()
{
    QSettings().clear();
    warnings.clear();
    m_handler = qInstallMessageHandler(noteWarnings);
    m_settings = std::make_unique<Settings>();
    m_model = std::make_unique<MainModel>();
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
    QCOMPARE(lyrics->property("text").toString(), QStringLiteral("not suitable"));
    m_model->itemAt(1)->setProcessState(ModelItem::ProcessComplete);
    QCOMPARE(lyrics->property("text").toString(), QStringLiteral("no lyrics found"));
    m_model->itemAt(1)->setErrorString(QStringLiteral("the site is down"));
    QCOMPARE(lyrics->property("text").toString(), QStringLiteral("the site is down"));
    m_model->itemAt(1)->setProcessState(ModelItem::ProcessWaiting);
    QCOMPARE(lyrics->property("text").toString(), QStringLiteral("queued to search..."));
    m_model->removeAll();
    QTRY_COMPARE(lyrics->property("text").toString(), QStringLiteral("No file is selected"));
}

void tst_MainWindow::theKeyboardReachesListAndLyrics()
{
    m_model->add({sample("lyrics.mp3"), sample("untagged.mp3"), sample("plain.flac")});
    QTRY_VERIFY(m_model->itemAt(2)->tagsLoaded());
    m_model->itemAt(0)->setEditedLyricsTag(QStringLiteral("la\n").repeated(500));
    QWidget *scene = m_window->findChild<QQuickWidget *>();
    QQuickItem *list = sceneItem(QStringLiteral("songList"));
    QQuickItem *pane = sceneItem(QStringLiteral("lyricsPane"));
    QTest::keyClick(scene, Qt::Key_End);
    QCOMPARE(list->property("currentIndex").toInt(), 2);
    QTest::keyClick(scene, Qt::Key_Up);
    QTest::keyClick(scene, Qt::Key_Home);
    QCOMPARE(list->property("currentIndex").toInt(), 0);
    QTest::keyClick(scene, Qt::Key_Tab);
    QTest::keyClick(scene, Qt::Key_PageDown);
    QVERIFY(pane->property("contentY").toReal() > 100);
    QTest::keyClick(scene, Qt::Key_Tab);
    QTest::keyClick(scene, Qt::Key_Down);
    QCOMPARE(list->property("currentIndex").toInt(), 1);
    QCOMPARE(pane->property("contentY").toReal(), 0.0); // another song begins at its beginning
}

void tst_MainWindow::theStatusBarSaysWhatIsGoingOn()
{
    m_model->add({sample("lyrics.mp3"), sample("untagged.mp3")});
    QVERIFY(labels().contains(QStringLiteral("Searching... 2 left...")));
    emit m_model->filesLeftOut(4);
    emit m_model->filesLeftOut(3);
    QVERIFY(labels().contains(QStringLiteral("The list is full. Files left out: 7")));
    QVERIFY(labels().contains(QStringLiteral("Searching... 2 left...")));
    QTRY_COMPARE(m_model->activeCount(), 0);
    QVERIFY(labels().contains(QString()));
}

void tst_MainWindow::geometryAndPaneComeBack()
{
    m_window->resize(700, 500);
    QQuickItem *root = m_window->findChild<QQuickWidget *>()->rootObject();
    root->setProperty("listWidth", 321);
    m_window.reset();
    m_model->add({sample("lyrics.mp3")});
    openWindow();
    QTRY_COMPARE(m_window->size(), QSize(700, 500));
    QTRY_COMPARE(sceneItem(QStringLiteral("lyricsText"))->property("text").toString(), m_model->itemAt(0)->lyricsTag());
    QCOMPARE(m_window->findChild<QQuickWidget *>()->rootObject()->property("listWidth").toInt(), 321);
    QCOMPARE(sceneItem(QStringLiteral("songList"))->width(), 321.0);
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
