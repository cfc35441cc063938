// SPDX-License-Identifier: MIT
#include "app/GraphicsBackend.h"

#include "network/SettingsStore.h"
#include "settings/SettingsKeys.h"

#include <QSurfaceFormat>

namespace {

enum Method { Automatic = 0, OpenGlEs = 1, Software = 2, DesktopOpenGl = 3 };

void requestRenderable(QSurfaceFormat::RenderableType type)
{
    QSurfaceFormat format = QSurfaceFormat::defaultFormat();
    format.setRenderableType(type);
    QSurfaceFormat::setDefaultFormat(format);
}

} // namespace

void chooseGraphicsBackend()
{
    if (!qEnvironmentVariableIsEmpty("QMLSCENE_DEVICE"))
        return;
    switch (numberOf(storedValue(SettingsStore(), SettingsKey::OpenGlMethod), Automatic, DesktopOpenGl)
                .value_or(Software)) {
    case Automatic:
        break;
    case OpenGlEs:
        requestRenderable(QSurfaceFormat::OpenGLES);
        break;
    case DesktopOpenGl:
        requestRenderable(QSurfaceFormat::OpenGL);
        break;
    default:
        qputenv("QMLSCENE_DEVICE", "softwarecontext");
    }
}
