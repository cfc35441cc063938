// SPDX-License-Identifier: MIT
#include "ui/SongRemoval.h"

#include "model/MainModel.h"
#include "model/ProxyModel.h"
#include "ui/LyricsEdit.h"
#include "ui/LyricsEditGuard.h"
#include "ui/UnsavedLyricsGuard.h"

SongRemoval::SongRemoval(MainModel *model, ProxyModel *proxy, const LyricsEdit *edit, LyricsEditGuard *editGuard,
                         UnsavedLyricsGuard *unsavedGuard)
    : m_model(model)
    , m_proxy(proxy)
    , m_edit(edit)
    , m_editGuard(editGuard)
    , m_unsavedGuard(unsavedGuard)
{
}

void SongRemoval::removeSelected()
{
    const QVector<quint16> ids = m_proxy->selectedIds();
    const auto remove = [this, ids] {
        m_unsavedGuard->beforeRemoving(ids, [this] {
            m_proxy->removeSelected();
            selectCurrent();
        });
    };
    ids.contains(m_edit->songId()) ? m_editGuard->before(remove) : remove();
}

void SongRemoval::selectCurrent()
{
    const int row = m_proxy->currentIndex();
    m_proxy->setCurrentIndex(-1); // a row that is current already would not be selected
    m_proxy->setCurrentIndex(row);
}

void SongRemoval::removeAll()
{
    m_editGuard->before([this] { m_unsavedGuard->beforeRemoving(shownIds(), [this] { m_proxy->removeAll(); }); });
}

QVector<quint16> SongRemoval::shownIds() const
{
    QVector<quint16> ids;
    for (int row = 0; row < m_proxy->rowCount(); ++row)
        ids.append(m_model->itemAt(m_proxy->mapToSource(m_proxy->index(row, 0)).row())->id());
    return ids;
}

void SongRemoval::removeWithLyrics()
{
    const auto remove = [this] {
        m_unsavedGuard->beforeRemoving(idsWithLyrics(), [this] { m_model->removeWithLyrics(); });
    };
    const ModelItem *edited = m_edit->song();
    edited && !edited->lyricsTag().isEmpty() ? m_editGuard->before(remove) : remove();
}

QVector<quint16> SongRemoval::idsWithLyrics() const
{
    QVector<quint16> ids;
    for (int row = 0; row < m_model->rowCount(); ++row) {
        const ModelItem *song = m_model->itemAt(row);
        if (!song->lyricsTag().isEmpty())
            ids.append(song->id());
    }
    return ids;
}
