// SPDX-License-Identifier: MIT
#include "ui/Legibility.h"

#include <QFontInfo>
#include <QGuiApplication>
#include <QtQml>

#include <algorithm>
#include <cmath>

// In pixels: what the scene is drawn for, and the largest text that desktops have unasked, of 12 points.
static constexpr int drawnText = 12;
static constexpr int largestUsualText = 16;

// As defined by WCAG 2.1, "relative luminance".
static double luminance(const QColor &color)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

Legibility::Legibility(QObject *parent)
    : QObject(parent)
{
    connect(qGuiApp, &QGuiApplication::fontChanged, this, &Legibility::textScaleChanged);
}

void Legibility::registerType()
{
    qmlRegisterType<Legibility>("com.quillmarsh", 1, 0, "Legibility");
}

qreal Legibility::textScale() const
{
    const int text = QFontInfo(QGuiApplication::font()).pixelSize();
    return text <= largestUsualText ? 1 : std::floor(4.0 * text / drawnText) / 4;
}

qreal Legibility::contrast(const QColor &first, const QColor &second)
{
    const auto [darker, lighter] = std::minmax({luminance(first), luminance(second)});
    return (lighter + 0.05) / (darker + 0.05);
}
