// SPDX-License-Identifier: MIT
#pragma once

#include <QQmlComponent>
#include <QQmlEngine>

// The QML engine of the window's scene. It begins to load the scene in its own thread as soon as it is made, so that
// the other parts of the window can be made meanwhile. Main thread only.
class SceneEngine : public QQmlEngine
{
    Q_OBJECT

public:
    explicit SceneEngine(QObject *parent = nullptr);

    // The document of the scene's root.
    [[nodiscard]] static QUrl document();

private:
    const QQmlComponent m_scene; // nothing is created from it: who creates the scene finds it loaded
};
