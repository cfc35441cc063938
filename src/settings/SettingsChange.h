// SPDX-License-Identifier: MIT
#pragma once

#include "settings/SettingsKeys.h"

#include <QPair>
#include <QVector>

#include <functional>
#include <optional>

struct SettingsMending;

// Some values that go into the settings file together: all of them or none.
//
// Everything that the program stores goes this way. QSettings alone is not enough on a full disk: what it could not
// write is cut off, the cut file replaces the good one, and its status says that all is well (Qt 5.15). Here the new
// file is made beside the old one, checked to be whole, synced and renamed over it.
class SettingsChange
{
public:
    // Whether all was stored, and what was found wrong with the file before that.
    using Listener = std::function<void(bool isStored, const SettingsMending &mended)>;

    // Told of each commit(), whoever makes it, so that none fails without a word. One at a time; none by default.
    static void setListener(const Listener &told);

    // An invalid value removes the key.
    void set(SettingsKey key, const QVariant &value) { m_values.append({key, value}); }
    // Everything goes that is stored now, but for these keys and what is set here.
    void keepOnly(const QVector<SettingsKey> &keys) { m_kept = keys; }

    // Writes to the default store; what is stored already costs nothing. False, after a warning in the log, when that
    // fails; the file is then as it was. A file that is read-only stays as it is, also for root, and so does one whose
    // owner the new file could not be given.
    bool commit() const;

private:
    [[nodiscard]] bool changesNothing() const;
    [[nodiscard]] bool writeNewFile(const QString &path, SettingsMending *mended) const;
    // Whether the kept list of songs stays as it is.
    [[nodiscard]] bool keepsList() const;
    // How many entries the file holds then; nothing when it cannot be changed.
    [[nodiscard]] std::optional<int> edit(const QString &file) const;

    QVector<QPair<SettingsKey, QVariant>> m_values;
    std::optional<QVector<SettingsKey>> m_kept; // nothing: all that is not set stays
};
