// SPDX-License-Identifier: MIT
#include "ui/WindowActions.h"

#include "ui/Legibility.h"
#include "ui/MenuStyle.h"
#include "ui/Pictures.h"

#include <QAction>
#include <QCoreApplication>
#include <QLayout>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QToolBar>
#include <QToolButton>

static constexpr QSize toolIconSize(24, 24);
static constexpr int gearWidth = 30;

// In a list of a menu's entries.
static constexpr QAction *separator = nullptr;

namespace {

// Shows that it has the keyboard, which a button with a style sheet of its own does not.
class RingedToolButton : public QToolButton
{
public:
    using QToolButton::QToolButton;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QToolButton::paintEvent(event);
        if (!hasFocus())
            return;
        QPainter painter(this);
        MenuStyle::drawFocusRing(&painter, rect(), window()->palette());
    }
};

} // namespace

static void scale(QToolBar *bar, QToolButton *gear, qreal textScale)
{
    bar->setIconSize(toolIconSize * textScale);
    gear->setStyleSheet(
        QStringLiteral(" QToolButton { width: %1; border: none; } QToolButton::menu-indicator { image: none; }")
            .arg(qRound(gearWidth * textScale)));
}

static void fill(QMenu *menu, std::initializer_list<QAction *> entries)
{
    for (QAction *entry : entries) {
        if (entry == separator)
            menu->addSeparator();
        else
            menu->addAction(entry);
    }
}

struct WindowActions::Row
{
    QAction *WindowActions::*action;
    const char *name;
    const char *text;
    const char *icon;     // null: none
    const char *shortcut; // null: none
    QAction::MenuRole role;
};

const WindowActions::Row WindowActions::rows[] = {
    {&WindowActions::addFile, "actionAddFile", QT_TRANSLATE_NOOP("MainWindow", "Add file"),
     ":/img/toolbar_add_file.png", "Ctrl+O", QAction::NoRole},
    {&WindowActions::addFolder, "actionAddFolder", QT_TRANSLATE_NOOP("MainWindow", "Add folder"),
     ":/img/toolbar_add_folder.png", nullptr, QAction::NoRole},
    {&WindowActions::hideWithLyrics, "actionHideWithLyrics",
     QT_TRANSLATE_NOOP("MainWindow", "Hide file(s) with lyrics"), nullptr, "Ctrl+L", QAction::NoRole},
    {&WindowActions::selectAll, "actionSelectAll", QT_TRANSLATE_NOOP("MainWindow", "Select all"), nullptr, "Ctrl+A",
     QAction::NoRole},
    {&WindowActions::removeWithLyrics, "actionRemoveWithLyrics", QT_TRANSLATE_NOOP("MainWindow", "Remove with lyrics"),
     nullptr, "Meta+Alt+Del", QAction::NoRole},
    {&WindowActions::clearList, "actionClearList", QT_TRANSLATE_NOOP("MainWindow", "Clear list"), nullptr, nullptr,
     QAction::NoRole},
    {&WindowActions::removeSelected, "actionRemoveSelected", QT_TRANSLATE_NOOP("MainWindow", "Remove selected"),
     nullptr, "Del", QAction::NoRole},
    {&WindowActions::facebook, "actionFacebook", QT_TRANSLATE_NOOP("MainWindow", "Facebook"), ":/img/facebook.png",
     nullptr, QAction::NoRole},
    {&WindowActions::twitter, "actionTwitter", QT_TRANSLATE_NOOP("MainWindow", "Twitter"), ":/img/twitter.png", nullptr,
     QAction::NoRole},
    {&WindowActions::quit, "actionQuit", QT_TRANSLATE_NOOP("MainWindow", "Quit"), nullptr, nullptr, QAction::QuitRole},
    {&WindowActions::about, "actionAbout", QT_TRANSLATE_NOOP("MainWindow", "About"), nullptr, nullptr,
     QAction::AboutRole},
    {&WindowActions::website, "actionWebsite", QT_TRANSLATE_NOOP("MainWindow", "Website"), ":/img/home.png", nullptr,
     QAction::NoRole},
    {&WindowActions::settings, "actionSettings", QT_TRANSLATE_NOOP("MainWindow", "Preferences"), nullptr, nullptr,
     QAction::PreferencesRole},
    {&WindowActions::exportLyrics, "actionExportLyrics", QT_TRANSLATE_NOOP("MainWindow", "Export lyrics to TXT file"),
     nullptr, nullptr, QAction::NoRole},
    {&WindowActions::checkForUpdates, "actionCheckForUpdates", QT_TRANSLATE_NOOP("MainWindow", "Check for updates..."),
     nullptr, nullptr, QAction::NoRole},
};

WindowActions::WindowActions(QMainWindow *window)
{
    initPictures();
    createActions(window);
    createMenus(window);
    createToolBar(window);
    retranslate();
}

void WindowActions::createActions(QMainWindow *window)
{
    for (const Row &row : rows) {
        auto *action = new QAction(window);
        action->setObjectName(QLatin1String(row.name));
        action->setMenuRole(row.role);
        if (row.icon)
            action->setIcon(pictureIcon(QLatin1String(row.icon)));
        action->setIconVisibleInMenu(false); // it would not be seen on the highlight colour
        if (row.shortcut)
            action->setShortcut(QKeySequence(QLatin1String(row.shortcut)));
        this->*row.action = action;
    }
    hideWithLyrics->setCheckable(true);
}

void WindowActions::createMenus(QMainWindow *window)
{
    QMenuBar *bar = window->menuBar();
    m_file = bar->addMenu(QString());
    fill(m_file, {addFile, addFolder, separator, exportLyrics, separator, settings, quit});
    m_edit = bar->addMenu(QString());
    fill(m_edit, {selectAll, separator, removeSelected, removeWithLyrics, separator, clearList});
    m_view = bar->addMenu(QString());
    fill(m_view, {hideWithLyrics});
    m_help = bar->addMenu(QString());
    fill(m_help, {about});
}

void WindowActions::createToolBar(QMainWindow *window)
{
    m_toolBar = window->addToolBar(QString());
    m_toolBar->setObjectName(QStringLiteral("toolBar"));
    m_toolBar->setMovable(false);
    m_toolBar->setFloatable(false);
    m_toolBar->setContextMenuPolicy(Qt::PreventContextMenu); // it would offer to hide the bar for good
    m_toolBar->setStyleSheet(QStringLiteral("QToolBar { border: none; spacing: 0px }"));
    m_toolBar->addActions({addFile, addFolder});
    for (QAction *action : m_toolBar->actions())
        m_toolBar->widgetForAction(action)->setFocusPolicy(Qt::TabFocus);
    auto *gap = new QWidget(m_toolBar);
    gap->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    m_toolBar->addWidget(gap);
    createGearButton(m_toolBar);
    m_toolBar->layout()->setContentsMargins(4, 4, 8, 4); // the bar's own margins would only make it larger
    const auto *legibility = new Legibility(m_toolBar);
    QObject::connect(legibility, &Legibility::textScaleChanged, m_gear,
                     [bar = m_toolBar, gear = m_gear, legibility] { scale(bar, gear, legibility->textScale()); });
    scale(m_toolBar, m_gear, legibility->textScale());
}

void WindowActions::createGearButton(QToolBar *bar)
{
    m_gear = new RingedToolButton(bar);
    m_gear->setObjectName(QStringLiteral("gearButton"));
    m_gear->setIcon(pictureIcon(QStringLiteral(":/img/gear_small.png")));
    m_gear->setFocusPolicy(Qt::TabFocus);
    m_gear->setPopupMode(QToolButton::InstantPopup);
    auto *menu = new QMenu(bar->window()); // as a child of the button its colours would not follow the palette
    fill(menu, {settings, checkForUpdates, separator, hideWithLyrics});
    m_gear->setMenu(menu);
    bar->addWidget(m_gear);
}

void WindowActions::retranslate()
{
    const auto text = [](const char *source) {
        return QCoreApplication::translate("MainWindow", source);
    };
    for (const Row &row : rows)
        (this->*row.action)->setText(text(row.text));
    for (QAction *link : {facebook, twitter}) {
        link->setIconText(link->text());
        link->setToolTip(link->text());
    }
    //: A menu; Alt with the letter behind & opens it: another letter for each of the four.
    m_file->setTitle(text(QT_TRANSLATE_NOOP("MainWindow", "&File")));
    //: A menu; Alt with the letter behind & opens it: another letter for each of the four.
    m_edit->setTitle(text(QT_TRANSLATE_NOOP("MainWindow", "&Edit")));
    //: A menu; Alt with the letter behind & opens it: another letter for each of the four.
    m_view->setTitle(text(QT_TRANSLATE_NOOP("MainWindow", "&View")));
    //: A menu; Alt with the letter behind & opens it: another letter for each of the four.
    m_help->setTitle(text(QT_TRANSLATE_NOOP("MainWindow", "&Help")));
    // As a title it would be the bar's name as well, but the one of the first language for good.
    m_toolBar->setAccessibleName(text(QT_TRANSLATE_NOOP("MainWindow", "Tools")));
    m_gear->setToolTip(text(QT_TRANSLATE_NOOP("MainWindow", "Options")));
    m_gear->setAccessibleName(m_gear->toolTip());
}
