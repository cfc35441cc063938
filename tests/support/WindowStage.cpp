// SPDX-License-Identifier: MIT
#include "support/WindowStage.h"

#include "tags/WriterThread.h"
#include "ui/LyricsEdit.h"

#include <QAction>
#include <QSignalSpy>
#include <QTest>

WindowStage::WindowStage()
{
    m_folder.holdSettings();
    QCoreApplication::setApplicationVersion(QStringLiteral("1.5.6"));
    qputenv("QMLSCENE_DEVICE", "softwarecontext");
}

WindowStage::~WindowStage() = default;

QUrl WindowStage::sample(const char *name)
{
    return QUrl::fromLocalFile(QStringLiteral(VERSEWELL_SAMPLES_DIR "/") + QLatin1String(name));
}

void WindowStage::makeParts()
{
    m_settings = std::make_unique<Settings>();
    m_model = std::make_unique<MainModel>();
    m_model->setReaderProgram(QStringLiteral(VERSEWELL_READER));
    m_proxy = std::make_unique<ProxyModel>();
    m_proxy->setSourceModel(m_model.get());
    m_scanner = std::make_unique<FolderScanner>();
}

void WindowStage::openWindow(QObject *app, QSize size, AppTracker *tracker, UsageConsent *consent, Updater *updater)
{
    m_window = std::make_unique<MainWindow>(MainWindow::Parts{
        m_model.get(), m_proxy.get(), m_scanner.get(), m_settings.get(), &m_palette, app, tracker, consent, updater});
    if (size.isValid())
        m_window->resize(size);
    QSignalSpy frames(m_window.get(), &MainWindow::firstFrameShown);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QTRY_COMPARE(frames.size(), 1); // the scene is whole then
}

void WindowStage::addCopies(int count)
{
    m_songs = std::make_unique<TestFolder>();
    QList<QUrl> urls;
    for (int i = 0; i < count; ++i) {
        urls.append(m_songs->url(QStringLiteral("%1.mp3").arg(i)));
        QVERIFY(QFile::copy(sample("untagged.mp3").toLocalFile(), urls.last().toLocalFile()));
    }
    m_model->add(urls);
    for (int i = 0; i < count; ++i)
        QTRY_COMPARE(song(i)->processState(), ModelItem::ProcessNotSuitable);
}

void WindowStage::beginDraft(int row)
{
    m_proxy->setCurrentIndex(-1);
    m_proxy->setCurrentIndex(row);
    m_window->lyricsEdit()->begin(song(row));
    m_window->lyricsEdit()->setText(QStringLiteral("new"));
}

void WindowStage::holdWrites()
{
    auto *slowWrite = new QObject;
    slowWrite->moveToThread(tags::WriterThread::instance().thread());
    QMetaObject::invokeMethod(slowWrite, [this] { m_disk.acquire(); });
    slowWrite->deleteLater();
}

QAction *WindowStage::action(const char *name) const
{
    return m_window->findChild<QAction *>(QLatin1String(name));
}
