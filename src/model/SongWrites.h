// SPDX-License-Identifier: MIT
#pragma once

#include "model/ModelItem.h"

#include <QHash>
#include <QObject>
#include <QQueue>
#include <QUrl>
#include <QVector>

#include <optional>

// The writes of songs that are under way. Main thread only; the files are written elsewhere (tags/TagWriter.h).
class SongWrites : public QObject
{
    Q_OBJECT

public:
    // Whose texts are written. Lyrics that another program has stored since are replaced only by a user who insists;
    // found ones are not stored either where it has changed the names that they were found for.
    enum class Kind { Found, Typed, Insisting };

    // How the first of the writes of a song that are under way ended.
    struct Outcome
    {
        QString reason;        // empty when it succeeded
        tags::SongTexts texts; // that were to be stored
        QUrl file;
        bool isForeignChange = false; // it failed since another program has changed the file
        bool isRenamed = false;       // in particular its names
        // What the write met there; empty when it has not seen.
        std::optional<ModelItem::FileKind> fileKind = {};
    };

    explicit SongWrites(QObject *parent = nullptr);

    // The program's own folder for saves (tags/TagUpdate.h).
    void setDataFolder(const QString &folder) { m_dataFolder = folder; }

    // Queues a write of the item's texts.
    void start(const ModelItem &item, Kind kind);
    [[nodiscard]] bool isWriting(quint16 id) const { return m_writes.contains(id); }
    [[nodiscard]] bool isWriting(const QUrl &file) const { return m_files.contains(file); }
    // Whether a write of this song is under way that stores other lyrics than these.
    [[nodiscard]] bool isWritingOther(quint16 id, const QString &lyrics) const;
    // To be called once for each written(); empty when no write of the song is under way.
    [[nodiscard]] std::optional<Outcome> takeOutcome(quint16 id);

signals:
    void written(quint16 id);

private:
    QString m_dataFolder;
    struct Write
    {
        tags::SongTexts texts;
        QUrl file;
    };

    QHash<quint16, QQueue<Write>> m_writes;       // under way, in their order
    QHash<QUrl, int> m_files;                     // how many writes of each are under way
    QHash<quint16, QString> m_failures;           // id to reason, until their end is told
    QHash<quint16, tags::UpdateResult> m_results; // likewise
};
