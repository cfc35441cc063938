// SPDX-License-Identifier: MIT
#include "ui/FirstPaint.h"

#include <QEvent>
#include <QTimer>
#include <QWidget>

namespace {

// Lives until the paint.
class PaintWatch : public QObject
{
public:
    PaintWatch(QWidget *window, const QObject *context, std::function<void()> then)
        : QObject(window)
        , m_context(context)
        , m_then(std::move(then))
    {
        connect(context, &QObject::destroyed, this, &QObject::deleteLater);
        window->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            watched->removeEventFilter(this);
            QTimer::singleShot(0, m_context, m_then); // the window is painted as a whole before that
            deleteLater();
        }
        return false;
    }

private:
    const QObject *m_context;
    const std::function<void()> m_then;
};

} // namespace

void afterFirstPaint(QWidget *window, const QObject *context, const std::function<void()> &then)
{
    new PaintWatch(window, context, then); // belongs to the window
}
