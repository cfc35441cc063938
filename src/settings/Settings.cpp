// SPDX-License-Identifier: MIT
#include "settings/Settings.h"

#include "settings/SettingsKeys.h"

#include <QSettings>

namespace {

constexpr int smallestFontSize = 6;
constexpr int largestFontSize = 40;

// Stores the value and tells whether it was a new one.
template<typename T>
bool assign(T &field, const T &value)
{
    if (field == value)
        return false;
    field = value;
    return true;
}

} // namespace

Settings::Settings(QObject *parent)
    : QObject(parent)
{
    connect(this, &Settings::languageChanged, this, &Settings::changed);
}

void Settings::load()
{
    const QSettings store;
    m_lyricsFontSize = store.value(SettingsKeys::lyricsFontSize, m_lyricsFontSize).toInt();
    m_language = store.value(SettingsKeys::language, m_language).toString();
    m_saveFilesList = store.value(SettingsKeys::saveFilesList, m_saveFilesList).toBool();
    m_searchProvider = store.value(SettingsKeys::searchProvider, m_searchProvider).toString();
    m_generateLyricsFileAuto = store.value(SettingsKeys::generateLyricsFileAuto, m_generateLyricsFileAuto).toBool();
    m_prependNewLine = store.value(SettingsKeys::prependNewLine, m_prependNewLine).toBool();
    m_providersOrder = store.value(SettingsKeys::providersOrder, m_providersOrder).toString();
}

void Settings::save() const
{
    QSettings store;
    store.setValue(SettingsKeys::lyricsFontSize, m_lyricsFontSize);
    store.setValue(SettingsKeys::language, m_language);
    store.setValue(SettingsKeys::saveFilesList, m_saveFilesList);
    store.setValue(SettingsKeys::searchProvider, m_searchProvider);
    store.setValue(SettingsKeys::generateLyricsFileAuto, m_generateLyricsFileAuto);
    store.setValue(SettingsKeys::prependNewLine, m_prependNewLine);
    store.setValue(SettingsKeys::providersOrder, m_providersOrder);
}

void Settings::setLyricsFontSize(int pointSize)
{
    if (pointSize < smallestFontSize || pointSize > largestFontSize)
        return;
    if (assign(m_lyricsFontSize, pointSize))
        emit changed();
}

void Settings::setLanguage(const QString &language)
{
    if (assign(m_language, language))
        emit languageChanged(language);
}

void Settings::setSaveFilesList(bool on)
{
    if (assign(m_saveFilesList, on))
        emit saveFilesListChanged(on);
}

void Settings::setSearchProvider(const QString &name)
{
    if (assign(m_searchProvider, name))
        emit searchProviderChanged(name);
}

void Settings::setGenerateLyricsFileAuto(bool on)
{
    if (assign(m_generateLyricsFileAuto, on))
        emit generateLyricsFileAutoChanged(on);
}

void Settings::setPrependNewLine(bool on)
{
    if (assign(m_prependNewLine, on))
        emit prependNewLineChanged(on);
}

void Settings::setProvidersOrder(const QString &order)
{
    if (assign(m_providersOrder, order))
        emit providersOrderChanged(order);
}
