// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>
#include <QVector>

class MainModel;

// Forces searches of many songs in slices, from the event loop, so that the window goes on living. Main thread only.
class ForcedSearches : public QObject
{
    Q_OBJECT

public:
    // The model is not owned and must outlive the object.
    explicit ForcedSearches(MainModel *model, QObject *parent = nullptr);

    // The first slice is forced before this returns. Songs of earlier calls come first; a song that has gone by its
    // turn is skipped.
    void add(const QVector<quint16> &ids);

private:
    void forceSome();

    MainModel *m_model;
    QVector<quint16> m_ids; // the next one last
    QTimer m_next;          // runs while there are any
};
