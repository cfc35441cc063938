// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>
#include <QVector>

class MainModel;

// Exports the lyrics of many songs to text files, and tells of those that could not be written, the automatic exports
// of the model included. The songs are handed over a few at a time between other events, and written elsewhere, so that
// the window stays usable. Main thread only.
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
    // Hands over all that is left at once, for the end of the program, which waits until it is written.
    void queueRest();

signals:
    // All that was added is done; or some more of the automatic exports have failed, which are counted since the last
    // time that something was added.
    void finished(const LyricsExport::Result &result);

private:
    void exportSome();
    void exportOne(quint16 id);
    void note(const QString &textFile, bool isWritten);
    void noteAutomaticFailure(const QString &textFile);
    void finishIfDone();

    MainModel *m_model;
    QTimer m_next;
    QVector<quint16> m_ids; // the next one is the last
    int m_inWriting = 0;
    Result m_result;
    Result m_automatic;
};
