// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QObject>

// What the scene has to know of the desktop to be read: how large its text is. Type Legibility of the module
// com.quillmarsh; it follows changes of the application's font. Main thread only.
class Legibility : public QObject
{
    Q_OBJECT
    // How many times as large as drawn the scene's texts are: 1 on usual desktops, in steps of a quarter above.
    Q_PROPERTY(qreal textScale READ textScale NOTIFY textScaleChanged)

public:
    explicit Legibility(QObject *parent = nullptr);

    // The module must know the type before a document with it is loaded.
    static void registerType();

    [[nodiscard]] qreal textScale() const;

    // The contrast of two opaque colours as WCAG 2.1 defines it, from 1 to 21. Text needs 4.5, a sign 3.
    Q_INVOKABLE static qreal contrast(const QColor &first, const QColor &second);

signals:
    void textScaleChanged();
};
