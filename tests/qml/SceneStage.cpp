// SPDX-License-Identifier: MIT
#include "SceneStage.h"

#include "tags/TagWriter.h"
#include "ui/ButtonImageProvider.h"
#include "ui/FileImageProvider.h"
#include "ui/Legibility.h"
#include "ui/LineSpacing.h"
#include "ui/Pictures.h"
#include "ui/SpokenFocus.h"

#include <QFile>
#include <QQmlContext>
#include <QQmlEngine>

#include <chrono>

static void initSceneResources()
{
    Q_INIT_RESOURCE(qml);
}

SceneStage::SceneStage()
    : m_edit(&m_model)
{
    m_model.setReaderProgram(QStringLiteral(VERSEWELL_READER));
    m_proxy.setSourceModel(&m_model);
    m_scanner.setTypes({QStringLiteral("mp3")});
}

SceneStage::~SceneStage()
{
    TagWriter::waitForQueued(std::chrono::seconds(10)); // into the folder, which goes now
}

void SceneStage::showSongs(const QStringList &samples)
{
    m_edit.cancel();
    m_model.removeAll();
    QList<QUrl> urls;
    for (const QString &sample : samples) {
        const QString copy = m_folder.filePath(QStringLiteral("%1 %2").arg(urls.size()).arg(sample));
        QFile::copy(QStringLiteral(VERSEWELL_SAMPLES_DIR "/") + sample, copy);
        urls.append(QUrl::fromLocalFile(copy));
    }
    m_model.add(urls);
}

ModelItem *SceneStage::song(int row) const
{
    ModelItem *item = m_model.itemAt(row);
    QQmlEngine::setObjectOwnership(item, QQmlEngine::CppOwnership);
    return item;
}

QUrl SceneStage::folder() const
{
    return QUrl::fromLocalFile(m_folder.path());
}

void SceneStage::applicationAvailable()
{
    initSceneResources();
    initPictures();
    LineSpacing::registerType();
    Legibility::registerType();
    SpokenFocus::registerType();
}

void SceneStage::qmlEngineAvailable(QQmlEngine *engine)
{
    QQmlContext *context = engine->rootContext();
    context->setContextProperty(QStringLiteral("settings"), &m_settings);
    context->setContextProperty(QStringLiteral("mainWindow"), this);
    context->setContextProperty(QStringLiteral("mainModel"), &m_model);
    context->setContextProperty(QStringLiteral("proxyModel"), &m_proxy);
    context->setContextProperty(QStringLiteral("folderScanner"), &m_scanner);
    context->setContextProperty(QStringLiteral("appPalette"), &m_palette);
    auto *covers = new FileImageProvider;
    covers->setModel(&m_model);
    engine->addImageProvider(QStringLiteral("btnimage"),
                             new ButtonImageProvider); // owned by the engine, as is the other
    engine->addImageProvider(QStringLiteral("file-cover"), covers);
}
