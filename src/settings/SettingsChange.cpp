// SPDX-License-Identifier: MIT
#include "settings/SettingsChange.h"

#include "network/SettingsStore.h"
#include "settings/SettingsCopy.h"
#include "settings/SettingsFile.h"
#include "settings/SettingsLog.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace {

SettingsChange::Listener &listener()
{
    static SettingsChange::Listener onlyOne;
    return onlyOne;
}

// By its permissions, which count for root as well.
bool isWritable(const QFileInfo &file)
{
    return !file.exists() || (file.isFile() && file.isWritable() && file.permission(QFile::WriteOwner));
}

// Whether the store says that already; it gives numbers and flags back as texts.
bool isStored(const QVariant &stored, const QVariant &value)
{
    if (!stored.isValid() || !value.isValid())
        return stored.isValid() == value.isValid();
    if (value.type() == QVariant::StringList)
        return stored.toStringList() == value.toStringList();
    if (value.type() == QVariant::ByteArray)
        return stored.type() == QVariant::ByteArray && stored.toByteArray() == value.toByteArray();
    return stored.toString() == value.toString();
}

// Whether everything arrived: what is missing on a full disk is missing at the end.
bool isWhole(const QByteArray &content, int entries)
{
    const SettingsFileCheck check = checkSettingsFile(content);
    return check.clean && check.entries == entries && content.size() <= largestSettingsFileBytes;
}

void clearAllBut(const QVector<SettingsKey> &keys, QSettings *store)
{
    QVector<QPair<QString, QVariant>> kept;
    for (const SettingsKey key : keys) {
        if (store->contains(keyName(key)))
            kept.append({keyName(key), store->value(keyName(key))});
    }
    store->clear();
    for (const auto &[name, value] : kept)
        store->setValue(name, value);
}

// Nothing when it cannot be read; empty when there is no such file.
std::optional<QByteArray> contentOf(const QString &path)
{
    QFile file(path);
    if (!file.exists())
        return QByteArray();
    return file.open(QIODevice::ReadOnly) ? wholeContent(&file) : std::nullopt;
}

} // namespace

void SettingsChange::setListener(const Listener &told)
{
    listener() = told;
}

bool SettingsChange::commit() const
{
    const QString path = SettingsStore::path();
    QDir().mkpath(QFileInfo(path).absolutePath());
    SettingsMending mended;
    const bool succeeded = isWritable(QFileInfo(path)) && (changesNothing() || writeNewFile(path, &mended));
    if (!succeeded)
        qCWarning(settingsLog, "The settings cannot be stored: their file cannot be written.");
    if (listener())
        listener()(succeeded, mended);
    return succeeded;
}

bool SettingsChange::changesNothing() const
{
    const SettingsStore store;
    return !m_kept && std::all_of(m_values.begin(), m_values.end(), [&store](const auto &entry) {
        return isStored(store.value(keyName(entry.first)), entry.second);
    });
}

bool SettingsChange::writeNewFile(const QString &path, SettingsMending *mended) const
{
    // Somebody else may have written there since the start.
    *mended = mendSettingsFile(path, SettingsFileAccess::Mend);
    if (mended->standIn)
        return false;
    const std::optional<QByteArray> old = contentOf(path);
    SettingsCopy copy(path);
    if (!old || !copy.write(*old))
        return false;
    const std::optional<int> entries = edit(copy.fileName());
    const std::optional<QByteArray> edited = contentOf(copy.fileName());
    return entries && edited && isWhole(*edited, *entries) && copy.write(markedAsWhole(*edited)) && copy.takePlace();
}

std::optional<int> SettingsChange::edit(const QString &file) const
{
    QSettings store(file, QSettings::NativeFormat);
    if (m_kept)
        clearAllBut(*m_kept, &store);
    for (const auto &[key, value] : m_values) {
        if (value.isValid())
            store.setValue(keyName(key), value);
        else
            store.remove(keyName(key));
    }
    store.sync();
    if (store.status() != QSettings::NoError)
        return {};
    return store.allKeys().size();
}
