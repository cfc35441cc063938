// SPDX-License-Identifier: MIT
#include "ui/WindowState.h"

#include "model/MainModel.h"
#include "network/SettingsStore.h"
#include "settings/Settings.h"
#include "settings/SettingsChange.h"
#include "ui/Legibility.h"
#include "ui/SceneWidget.h"

#include <QMainWindow>
#include <QScreen>

#include <optional>

static constexpr QSize leastSize(480, 320);
static constexpr QSize usualSize(1040, 680);
// Of the screen at most, unless the usual size fits it.
static constexpr double screenShare = 0.9;

WindowState::WindowState(QMainWindow *window, SceneWidget *scene, const MainModel *model, const Settings *settings)
    : m_window(window)
    , m_scene(scene)
    , m_model(model)
    , m_settings(settings)
{
}

void WindowState::resizeToText()
{
    const QSize available = m_window->screen()->availableSize();
    const bool usualFits = usualSize.boundedTo(available) == usualSize;
    const QSize wanted = usualSize * Legibility().textScale();
    m_window->resize(
        wanted.boundedTo(available * screenShare).expandedTo(usualFits ? usualSize : m_window->minimumSize()));
}

void WindowState::bound()
{
    const QSize before = m_scene->size();
    m_scene->setMinimumSize(m_scene->leastSize());
    const QSize excess = (m_window->minimumSizeHint() - m_window->screen()->availableSize()).expandedTo({0, 0});
    m_scene->setMinimumSize(m_scene->leastSize() - excess);
    m_scene->resize(before.expandedTo(m_scene->minimumSize())); // which a screen that is too small has made too large
    m_window->setMinimumSize(m_window->minimumSizeHint().expandedTo(leastSize));
}

void WindowState::restore()
{
    const SettingsStore stored;
    m_window->restoreGeometry(storedValue(stored, SettingsKey::Geometry).toByteArray());
    if (const std::optional<int> width = storedListWidth(stored))
        m_scene->setListWidth(*width);
}

void WindowState::store() const
{
    SettingsChange change;
    m_settings->addTo(&change);
    change.set(SettingsKey::Geometry, m_window->saveGeometry());
    if (m_scene->listWidth() > 0)
        change.set(SettingsKey::ListWidth, m_scene->listWidth());
    if (m_settings->keepsFilesList())
        change.set(SettingsKey::FilesList, m_model->entries());
    change.commit();
}
