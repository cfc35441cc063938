// SPDX-License-Identifier: MIT
#pragma once

#include <QVector>

#include <functional>

class LyricsEdit;
class LyricsEditGuard;
class MainModel;
class ModelItem;
class ProxyModel;
class UnsavedLyricsGuard;

// Removes songs from the list, after asking where words of the user would be lost: a draft of lyrics, or names and
// lyrics that are in no file. What goes is what was meant when the removal was asked for: songs that are added or
// selected while the user is asked stay. Main thread only.
class SongRemoval
{
public:
    // Nothing is owned; all must outlive the object.
    SongRemoval(MainModel *model, ProxyModel *proxy, const LyricsEdit *edit, LyricsEditGuard *editGuard,
                UnsavedLyricsGuard *unsavedGuard);

    // The song that takes the place of the removed ones is selected, so that the next Del goes on with it.
    void removeSelected();
    // Leaves hidden songs in the list.
    void removeAll();
    // Also hidden ones.
    void removeWithLyrics();

private:
    using Songs = std::function<QVector<quint16>()>;
    using Condition = bool (*)(const ModelItem &song);

    static bool isAny(const ModelItem &) { return true; }

    void selectCurrent();
    // Of these songs, those that are in the list and meet the condition when they are asked for.
    [[nodiscard]] Songs remaining(const QVector<quint16> &ids, Condition condition = isAny) const;
    void removeSongs(const Songs &songs, const std::function<void()> &after);
    [[nodiscard]] QVector<quint16> shownIds() const;
    [[nodiscard]] QVector<quint16> idsWithLyrics() const;

    MainModel *m_model;
    ProxyModel *m_proxy;
    const LyricsEdit *m_edit;
    LyricsEditGuard *m_editGuard;
    UnsavedLyricsGuard *m_unsavedGuard;
};
