// SPDX-License-Identifier: MIT
#include "ui/AppPalette.h"

#include "ui/UiLog.h"

#include <QMap>

namespace {

// Made on first use and shared by all palettes; a QMap, since the colours are published in the order of the keys.
const QMap<QString, QPalette::ColorRole> &roles()
{
    static const QMap<QString, QPalette::ColorRole> table{
        {QStringLiteral("windowText"), QPalette::WindowText},
        {QStringLiteral("button"), QPalette::Button},
        {QStringLiteral("light"), QPalette::Light},
        {QStringLiteral("midlight"), QPalette::Midlight},
        {QStringLiteral("dark"), QPalette::Dark},
        {QStringLiteral("mid"), QPalette::Mid},
        {QStringLiteral("text"), QPalette::Text},
        {QStringLiteral("brightText"), QPalette::BrightText},
        {QStringLiteral("buttonText"), QPalette::ButtonText},
        {QStringLiteral("base"), QPalette::Base},
        {QStringLiteral("window"), QPalette::Window},
        {QStringLiteral("shadow"), QPalette::Shadow},
        {QStringLiteral("highlight"), QPalette::Highlight},
        {QStringLiteral("highlightedText"), QPalette::HighlightedText},
        {QStringLiteral("link"), QPalette::Link},
        {QStringLiteral("linkVisited"), QPalette::LinkVisited},
        {QStringLiteral("alternateBase"), QPalette::AlternateBase},
        {QStringLiteral("noRole"), QPalette::NoRole},
        {QStringLiteral("toolTipBase"), QPalette::ToolTipBase},
        {QStringLiteral("toolTipText"), QPalette::ToolTipText},
        {QStringLiteral("foreground"), QPalette::WindowText},
        {QStringLiteral("background"), QPalette::Window},
        {QStringLiteral("placeholderText"), QPalette::Mid},
        {QStringLiteral("listItemBackground"), QPalette::Base},
        {QStringLiteral("listItemSelected"), QPalette::Highlight},
        {QStringLiteral("listItemCurrentBorder"), QPalette::Mid},
        {QStringLiteral("listItemSeparator"), QPalette::Dark},
        {QStringLiteral("listItemImageBackground"), QPalette::Base},
        {QStringLiteral("listItemBadge"), QPalette::Dark},
        {QStringLiteral("listItemBadgeText"), QPalette::HighlightedText},
        {QStringLiteral("listItemSelectedText"), QPalette::HighlightedText},
        {QStringLiteral("listItemText"), QPalette::Text},
        {QStringLiteral("listBackground"), QPalette::Base},
        {QStringLiteral("splitHandle"), QPalette::Dark},
        {QStringLiteral("scanningFolderBackground"), QPalette::AlternateBase},
        {QStringLiteral("scanningFolderText"), QPalette::Text},
        {QStringLiteral("hiddenInfoBackground"), QPalette::AlternateBase},
        {QStringLiteral("hiddenInfoText"), QPalette::Text},
        {QStringLiteral("lyricsToolbarBackground"), QPalette::Base},
        {QStringLiteral("playbackSliderBackground"), QPalette::Window},
        {QStringLiteral("playbackSliderBorder"), QPalette::Dark},
        {QStringLiteral("playbackSliderForeground"), QPalette::Dark},
    };
    return table;
}

// How much of the text colour is in a label; the rest is the colour behind it.
constexpr double labelStrength = 0.6;

} // namespace

AppPalette::AppPalette(QObject *parent)
    : QQmlPropertyMap(this, parent)
{
    m_palette.setCurrentColorGroup(QPalette::Active);
    updateColorProperties();
}

AppPalette::AppPalette(const AppPalette &other)
    : QQmlPropertyMap(this, nullptr)
    , m_palette(other.m_palette)
{
    updateColorProperties();
}

AppPalette &AppPalette::operator=(const AppPalette &other)
{
    if (this != &other)
        setPalette(other.m_palette);
    return *this;
}

AppPalette::~AppPalette() = default;

QColor AppPalette::mixedColor(const QColor &first, const QColor &second, double q)
{
    if (!(q >= 0 && q <= 1)) {
        qCDebug(uiLog) << "AppPalette"
                       << "->"
                       << "mixedColor"
                       << "Warning! q is not in range 0 - 1...";
        return q < 0 ? first : second;
    }
    const auto mixed = [q](int a, int b) {
        return static_cast<int>(q * a + (1 - q) * b);
    };
    return {mixed(first.red(), second.red()), mixed(first.green(), second.green()), mixed(first.blue(), second.blue())};
}

void AppPalette::setColorGroup(int group)
{
    if (group == colorGroup())
        return;
    m_palette.setCurrentColorGroup(static_cast<QPalette::ColorGroup>(group));
    emit colorGroupChanged(group);
}

void AppPalette::setTheme(const QString &) {}

void AppPalette::setPalette(const QPalette &palette)
{
    m_palette = palette;
    updateColorProperties();
}

void AppPalette::updateColorProperties()
{
    const auto colorOf = [this](QPalette::ColorRole role) {
        return m_palette.brush(role).color();
    };
    for (auto entry = roles().begin(); entry != roles().end(); ++entry)
        insert(entry.key(), colorOf(entry.value()));
    insert(QStringLiteral("label"), mixedColor(colorOf(QPalette::Text), colorOf(QPalette::Base), labelStrength));
}
