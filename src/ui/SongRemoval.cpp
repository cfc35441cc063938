// SPDX-License-Identifier: MIT
#include "ui/SongRemoval.h"

#include "model/MainModel.h"
#include "model/ProxyModel.h"
#include "ui/LyricsEdit.h"
#include "ui/LyricsEditGuard.h"
#include "ui/UnsavedLyricsGuard.h"

#include <algorithm>
#include <iterator>
#include <utility>

static bool hasLyrics(const ModelItem &song)
{
    return !song.lyricsTag().isEmpty();
}

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
        removeSongs(remaining(ids), [this] { selectCurrent(); });
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
    const auto removeRest = [this] {
        if (m_model->rowCount() == 0)
            m_model->removeAll(); // what has no row yet
    };
    m_editGuard->before([this, ids = shownIds(), removeRest] { removeSongs(remaining(ids), removeRest); });
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
    const auto remove = [this, ids = idsWithLyrics()] {
        removeSongs(remaining(ids, hasLyrics), [] {});
    };
    const ModelItem *edited = m_edit->song();
    const bool removesEdited = edited != nullptr && hasLyrics(*edited);
    removesEdited ? m_editGuard->before(remove) : remove();
}

QVector<quint16> SongRemoval::idsWithLyrics() const
{
    QVector<quint16> ids;
    for (int row = 0; row < m_model->rowCount(); ++row) {
        const ModelItem *song = m_model->itemAt(row);
        if (hasLyrics(*song))
            ids.append(song->id());
    }
    return ids;
}

SongRemoval::Songs SongRemoval::remaining(const QVector<quint16> &ids, Condition condition) const
{
    return [this, ids, condition] {
        QVector<quint16> found;
        std::copy_if(ids.begin(), ids.end(), std::back_inserter(found), [this, condition](quint16 id) {
            const ModelItem *song = m_model->item(id);
            return song && condition(*song);
        });
        return found;
    };
}

void SongRemoval::removeSongs(const Songs &songs, const std::function<void()> &after)
{
    m_unsavedGuard->beforeRemoving(songs, [this, songs, after] {
        m_proxy->removeSongs(songs());
        after();
    });
}
