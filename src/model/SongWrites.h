// SPDX-License-Identifier: MIT
#pragma once

#include "model/ModelItem.h"

#include <QHash>
#include <QObject>
#include <QQueue>
#include <QUrl>
#include <QVector>

#include <optional>

// The writes of songs that are under way, and which songs hold lyrics that are in the list only, since their last write
// failed. Main thread only; the files are written elsewhere (tags/TagWriter.h).
class SongWrites : public QObject
{
    Q_OBJECT

public:
    // How the first of the writes of a song that are under way ended.
    struct Outcome
    {
        QString reason;        // empty when it succeeded
        tags::SongTexts texts; // that were to be stored
        QUrl file;
        // What the write met there; empty when it has not seen.
        std::optional<ModelItem::FileKind> fileKind;
    };

    explicit SongWrites(QObject *parent = nullptr);

    // The program's own folder for saves (tags/TagUpdate.h).
    void setDataFolder(const QString &folder) { m_dataFolder = folder; }

    // Queues a write of the item's texts. Without `insists` it fails when another program has stored lyrics since.
    void start(const ModelItem &item, bool insists);
    [[nodiscard]] bool isWriting(quint16 id) const { return m_writes.contains(id); }
    [[nodiscard]] bool isWriting(const QUrl &file) const { return m_files.contains(file); }
    [[nodiscard]] QVector<quint16> idsInWriting() const { return m_writes.keys().toVector(); }
    // To be called once for each written().
    [[nodiscard]] Outcome takeOutcome(quint16 id);

    // How many unsaved songs there are with this reason, this one among them.
    int noteUnsaved(quint16 id, const QString &reason);
    // Whether the song was unsaved.
    bool forgetUnsaved(quint16 id);
    [[nodiscard]] bool isUnsaved(quint16 id) const { return m_unsaved.contains(id); }
    [[nodiscard]] int unsavedCount() const { return m_unsaved.size(); }
    [[nodiscard]] QVector<quint16> unsavedIds() const { return m_unsaved.keys().toVector(); }

signals:
    void written(quint16 id);

private:
    QString m_dataFolder;
    struct Write
    {
        tags::SongTexts texts;
        QUrl file;
    };

    QHash<quint16, QQueue<Write>> m_writes;          // under way, in their order
    QHash<QUrl, int> m_files;                        // how many writes of each are under way
    QHash<quint16, QString> m_failures;              // id to reason, until their end is told
    QHash<quint16, ModelItem::FileKind> m_fileKinds; // likewise
    QHash<quint16, QString> m_unsaved;               // id to reason
    QHash<QString, int> m_unsavedByReason;
};
