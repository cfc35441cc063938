// SPDX-License-Identifier: MIT
#include "ui/SceneEngine.h"

#include "ui/Legibility.h"
#include "ui/LineSpacing.h"
#include "ui/SpokenFocus.h"

// The scene lies in a static library, so its resources have to be asked for; the macro must stand outside any
// namespace.
static void initSceneResources()
{
    Q_INIT_RESOURCE(qml);
}

// What its documents name must be there before they are loaded.
static QUrl preparedDocument()
{
    initSceneResources();
    LineSpacing::registerType();
    Legibility::registerType();
    SpokenFocus::registerType();
    return SceneEngine::document();
}

SceneEngine::SceneEngine(QObject *parent)
    : QQmlEngine(parent)
    , m_scene(this, preparedDocument(), QQmlComponent::Asynchronous)
{
}

QUrl SceneEngine::document()
{
    return QUrl(QStringLiteral("qrc:/qml/main.qml"));
}
