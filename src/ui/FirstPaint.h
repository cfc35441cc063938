// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class QObject;
class QWidget;

// Calls `then` from the event loop, once, when this window has been painted for the first time: for work that must not
// delay it. Nothing when `context` has gone by then.
void afterFirstPaint(QWidget *window, const QObject *context, const std::function<void()> &then);
