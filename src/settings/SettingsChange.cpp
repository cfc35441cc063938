// SPDX-License-Identifier: MIT
#include "settings/SettingsChange.h"

#include "settings/SettingsFile.h"
#include "settings/SettingsLog.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryFile>

#include <algorithm>
#include <cstdio>

#include <unistd.h>

namespace {

// The file itself where the settings lie behind a symbolic link.
QString storePath()
{
    const QString path = QSettings().fileName();
    const QString target = QFileInfo(path).canonicalFilePath();
    return target.isEmpty() ? path : target;
}

// By its permissions, which count for root as well.
bool isWritable(const QFileInfo &file)
{
    return !file.exists() || (file.isFile() && file.isWritable() && file.permission(QFile::WriteOwner));
}

// Makes a copy of the old file, for its entries that do not change; nothing when there is none.
bool copyInto(QTemporaryFile *copy, const QString &path)
{
    QFile old(path);
    if (!old.exists())
        return copy->open();
    if (!old.open(QIODevice::ReadOnly) || !copy->open())
        return false;
    const QByteArray content = old.readAll();
    return copy->setPermissions(old.permissions()) && copy->write(content) == content.size() && copy->flush();
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

bool syncAndRename(QFile *file, const QString &path)
{
    return fsync(file->handle()) == 0 &&
           std::rename(QFile::encodeName(file->fileName()).constData(), QFile::encodeName(path).constData()) == 0;
}

} // namespace

bool SettingsChange::commit() const
{
    const QString path = storePath();
    QDir().mkpath(QFileInfo(path).absolutePath());
    if (isWritable(QFileInfo(path)) && (changesNothing() || writeNewFile(path)))
        return true;
    qCWarning(settingsLog, "The settings cannot be stored: their file cannot be written.");
    return false;
}

bool SettingsChange::changesNothing() const
{
    const QSettings store;
    return !m_kept && std::all_of(m_values.begin(), m_values.end(), [&store](const auto &entry) {
        return isStored(store.value(keyName(entry.first)), entry.second);
    });
}

bool SettingsChange::writeNewFile(const QString &path) const
{
    // Somebody else may have written there since the start.
    if (mendSettingsFile(path, SettingsFileAccess::Mend).standIn)
        return false;
    // A name that was never used: the store remembers what it could not write under a name, and would add it later.
    QTemporaryFile copy(path + QLatin1String(".XXXXXX"));
    if (!copyInto(&copy, path))
        return false;
    copy.close();
    int entries = 0;
    {
        QSettings store(copy.fileName(), QSettings::NativeFormat);
        if (m_kept)
            clearAllBut(*m_kept, &store);
        for (const auto &[key, value] : m_values) {
            if (value.isValid())
                store.setValue(keyName(key), value);
            else
                store.remove(keyName(key));
        }
        store.sync();
        entries = store.allKeys().size();
        if (store.status() != QSettings::NoError)
            return false;
    }
    QFile written(copy.fileName());
    if (!written.open(QIODevice::ReadOnly) || !isWhole(written.readAll(), entries) || !syncAndRename(&written, path))
        return false;
    copy.setAutoRemove(false);
    return true;
}
