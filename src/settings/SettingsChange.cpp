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
    return check.clean && check.entries == entries;
}

const QByteArray firstGroup("[General]\n");

// Takes the line of the kept list out. Nothing, and all stays, unless it stands where the store writes it, and once.
QByteArray takeListLine(QByteArray *content)
{
    const QByteArray begin = '\n' + keyName(SettingsKey::FilesList).toLatin1() + '=';
    const int group = content->indexOf('[');
    if (group < 0 || content->mid(group, firstGroup.size()) != firstGroup)
        return {};
    const int start = content->indexOf(begin, group) + 1;
    const int end = content->indexOf('\n', start) + 1;
    const int nextGroup = content->indexOf("\n[", group + firstGroup.size() - 1);
    const bool isUsual = start > 0 && end > 0 && (nextGroup < 0 || nextGroup > start);
    if (!isUsual || content->indexOf(begin, end - 1) >= 0)
        return {};
    const QByteArray line = content->mid(start, end - start);
    content->remove(start, line.size());
    return line;
}

QByteArray withListLine(const QByteArray &content, const QByteArray &line)
{
    if (line.isEmpty())
        return content;
    const bool hasGroup = content.startsWith(firstGroup);
    return firstGroup + line + content.mid(hasGroup ? firstGroup.size() : 0);
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
    std::optional<QByteArray> old = contentOf(path);
    const QByteArray listLine = old && keepsList() ? takeListLine(&*old) : QByteArray();
    SettingsCopy copy(path);
    if (!old || !copy.write(*old))
        return false;
    const std::optional<int> entries = edit(copy.fileName());
    const std::optional<QByteArray> edited = contentOf(copy.fileName());
    if (!entries || !edited || !isWhole(*edited, *entries))
        return false;
    const QByteArray content = withListLine(*edited, listLine);
    return content.size() <= largestSettingsFileBytes && copy.write(markedAsWhole(content)) && copy.takePlace();
}

// The list of tens of thousands of songs then goes round QSettings, for which it is most of the work.
bool SettingsChange::keepsList() const
{
    return !m_kept && std::none_of(m_values.begin(), m_values.end(),
                                   [](const auto &entry) { return entry.first == SettingsKey::FilesList; });
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
