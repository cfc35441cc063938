// SPDX-License-Identifier: MIT
#include "model/SongWrites.h"

#include "tags/TagWriter.h"

#include <algorithm>

namespace {

// Nothing when the disk failed, or the file was left unopened: it may be there or away.
std::optional<ModelItem::FileKind> fileKindAfter(tags::UpdateResult result)
{
    switch (result) {
    case tags::UpdateResult::Missing:
        return ModelItem::FileKind::Missing;
    case tags::UpdateResult::NotRegular:
        return ModelItem::FileKind::Other;
    case tags::UpdateResult::DiskError:
    case tags::UpdateResult::AwaitsRestoring:
    case tags::UpdateResult::RestoredLater:
        return std::nullopt;
    default:
        return ModelItem::FileKind::Regular;
    }
}

} // namespace

SongWrites::SongWrites(QObject *parent)
    : QObject(parent)
{
}

void SongWrites::start(const ModelItem &item, Kind kind)
{
    const quint16 id = item.id();
    const tags::SongTexts texts = item.texts();
    tags::ShownTexts shown{item.storedTexts(), kind == Kind::Insisting, {}, kind == Kind::Found};
    QQueue<Write> &writes = m_writes[id];
    for (const Write &write : qAsConst(writes))
        shown.underWay.append(write.texts);
    writes.enqueue({texts, item.url()});
    ++m_files[item.url()];
    auto *writer = new TagWriter(m_dataFolder);
    connect(writer, &TagWriter::updated, this,
            [this](quint16 updatedId, tags::UpdateResult result) { m_results.insert(updatedId, result); });
    connect(writer, &TagWriter::failed, this,
            [this](quint16 failedId, const QString &reason) { m_failures.insert(failedId, reason); });
    connect(writer, &TagWriter::written, this, &SongWrites::written);
    connect(writer, &TagWriter::written, writer, &QObject::deleteLater);
    writer->queueWrite(item.url(), id, texts.artist, texts.title, texts.lyrics, shown);
}

bool SongWrites::isWritingOther(quint16 id, const QString &lyrics) const
{
    const QQueue<Write> writes = m_writes.value(id);
    return std::any_of(writes.begin(), writes.end(),
                       [&lyrics](const Write &write) { return write.texts.lyrics != lyrics; });
}

std::optional<SongWrites::Outcome> SongWrites::takeOutcome(quint16 id)
{
    const auto writes = m_writes.find(id);
    if (writes == m_writes.end())
        return std::nullopt;
    const Write write = writes->dequeue();
    Outcome outcome{m_failures.take(id), write.texts, write.file};
    if (m_results.contains(id)) {
        const tags::UpdateResult result = m_results.take(id);
        outcome.isRenamed = result == tags::UpdateResult::RenamedMeanwhile;
        outcome.isForeignChange = outcome.isRenamed || result == tags::UpdateResult::ChangedMeanwhile;
        outcome.fileKind = fileKindAfter(result);
    }
    if (--m_files[write.file] == 0)
        m_files.remove(write.file);
    if (writes->isEmpty())
        m_writes.erase(writes);
    return outcome;
}
