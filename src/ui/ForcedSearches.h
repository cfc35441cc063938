// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>
#include <QVector>

class MainModel;
class UnsavedLyricsGuard;

// Forces searches of many songs in slices, from the event loop, so that the window goes on living. Asks before where
// words of the user would be lost. Main thread only.
class ForcedSearches : public QObject
{
    Q_OBJECT

public:
    // The model and the guard are not owned and must outlive the object.
    ForcedSearches(MainModel *model, UnsavedLyricsGuard *guard, QObject *parent = nullptr);

    // The first slice is forced before this returns, unless there is something to ask. Songs of earlier calls come
    // first; a song that has gone by its turn is skipped.
    void add(const QVector<quint16> &ids);

private:
    void queue(const QVector<quint16> &ids);
    void forceSome();

    MainModel *m_model;
    UnsavedLyricsGuard *m_guard;
    QVector<quint16> m_ids; // the next one last
    QTimer m_next;          // runs while there are any
};
