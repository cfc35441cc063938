// SPDX-License-Identifier: MIT
#pragma once

#include <QVector>

class LyricsEdit;
class LyricsEditGuard;
class MainModel;
class ProxyModel;
class UnsavedLyricsGuard;

// Removes songs from the list, after asking where words of the user would be lost: a draft of lyrics, or names and
// lyrics that are in no file. Main thread only.
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
    void removeWithLyrics();

private:
    void selectCurrent();
    [[nodiscard]] QVector<quint16> shownIds() const;
    [[nodiscard]] QVector<quint16> idsWithLyrics() const;

    MainModel *m_model;
    ProxyModel *m_proxy;
    const LyricsEdit *m_edit;
    LyricsEditGuard *m_editGuard;
    UnsavedLyricsGuard *m_unsavedGuard;
};
