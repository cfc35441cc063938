// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>
#include <QVector>

class MainModel;

// Exports the lyrics of many songs to text files, a few at a time between other events, so that the window stays
// usable. Main thread only.
class LyricsExport : public QObject
{
    Q_OBJECT

public:
    struct Result
    {
        int written = 0;
        int failed = 0;
        QString failedFile; // path of the first text file that could not be written
    };

    // The model is not owned and must outlive the export.
    explicit LyricsExport(MainModel *model, QObject *parent = nullptr);

    // Adds songs by their ids. Songs without lyrics, or removed before their turn, are left out.
    void add(const QVector<quint16> &ids);

signals:
    // All that was added is done.
    void finished(const LyricsExport::Result &result);

private:
    void exportSome();
    void exportOne(quint16 id);

    MainModel *m_model;
    QTimer m_next;
    QVector<quint16> m_ids; // the next one is the last
    Result m_result;
};
