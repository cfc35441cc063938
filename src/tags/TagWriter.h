// SPDX-License-Identifier: MIT
#pragma once

#include "tags/TagUpdate.h"

#include <QObject>
#include <QString>
#include <QUrl>

#include <chrono>
#include <optional>

// Stores lyrics, and an edited artist and title, in the tags of audio files. Only what differs is changed, and a file
// is saved only when something did; the lyrics are stored as given.
//
// Every writer moves to the one writer thread of the process when it is made, so that files are written one at a time,
// in the order of the calls; connections to the GUI thread are queued by themselves. Use one writer a file:
//
//     auto *writer = new TagWriter(dataFolder);
//     connect(writer, &TagWriter::failed, ...); connect(writer, &TagWriter::written, ...);
//     writer->queueWrite(url, id, artist, title, lyrics, textsShown);
//
// and call deleteLater() once written() has arrived.
class TagWriter : public QObject
{
    Q_OBJECT

public:
    // For the GUI thread. It has no parent, since it changes threads. `dataFolder`: see updateTags().
    explicit TagWriter(const QString &dataFolder = {});

    // Calls write() on the writer thread; lyrics that the file may hold as the user's own are removed also when all
    // three texts are empty. `shown`: see updateTags(). The write counts as queued from this call on, until written()
    // was emitted or the writer was deleted.
    void queueWrite(const QUrl &fileToWrite, quint16 id, const QString &_artist, const QString &title,
                    const QString &lyrics, const std::optional<tags::ShownTexts> &shown = std::nullopt);

    static int pendingWrites();
    // Blocks until no write is queued; false, giving up, when for that long no write ended and not a byte was read or
    // written: a slow write that moves is waited for. The answers of the writes are signals to the calling thread, so
    // they arrive after this returns.
    static bool waitForQueued(std::chrono::milliseconds withoutProgress);

public slots:
    // Blocks. Three empty texts do nothing at all; an empty artist or title leaves the file's own; empty lyrics remove
    // those that are stored where the lyrics of the format are read.
    void write(const QUrl &fileToWrite, quint16 id, const QString &_artist, const QString &title, const QString &lyrics,
               const std::optional<tags::ShownTexts> &shown = std::nullopt);

signals:
    // How the update of the file ended; before failed() and written(), and not when there was nothing to do.
    void updated(quint16 id, tags::UpdateResult result);
    // The file was left as it was; reason says why in words for the user. Always before written().
    void failed(quint16 id, QString reason);
    // In every case, exactly once for each write.
    void written(quint16 id);

private:
    void store(const QUrl &file, quint16 id, const tags::SongTexts &texts,
               const std::optional<tags::ShownTexts> &shown);

    QString m_dataFolder;
};

Q_DECLARE_METATYPE(tags::UpdateResult)
