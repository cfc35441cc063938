// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPalette>
#include <QQmlPropertyMap>

// The desktop's colours under the names that the scene uses, each a key of this map. Main thread only.
class AppPalette : public QQmlPropertyMap
{
    Q_OBJECT
    Q_PROPERTY(int colorGroup READ colorGroup WRITE setColorGroup NOTIFY colorGroupChanged)
    Q_PROPERTY(QString theme READ theme WRITE setTheme NOTIFY themeChanged)

public:
    // Starts from a default palette, in its active group.
    explicit AppPalette(QObject *parent = nullptr);
    AppPalette(const AppPalette &other);
    AppPalette &operator=(const AppPalette &other);
    ~AppPalette() override;

    // A QPalette::ColorGroup.
    [[nodiscard]] int colorGroup() const { return m_palette.currentColorGroup(); }
    // Always "system".
    [[nodiscard]] QString theme() const { return QStringLiteral("system"); }

    // q parts of the first colour and 1 - q parts of the second, opaque. Outside 0 to 1 a warning is logged, and it is
    // the first colour below 0 and the second above 1: the reverse of clamping, and meant.
    [[nodiscard]] static QColor mixedColor(const QColor &first, const QColor &second, double q);

    // The colours change only at the next setPalette() or updateColorProperties(); that is meant.
    Q_INVOKABLE void setColorGroup(int group);
    // Accepted and ignored.
    Q_INVOKABLE void setTheme(const QString &theme);
    Q_INVOKABLE void setPalette(const QPalette &palette);
    // Publishes the palette's colours anew.
    Q_INVOKABLE void updateColorProperties();

signals:
    void colorGroupChanged(int group);
    // Never emitted.
    void themeChanged();

private:
    QPalette m_palette;
};
