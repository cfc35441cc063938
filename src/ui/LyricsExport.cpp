// SPDX-License-Identifier: MIT
#include "ui/LyricsExport.h"

#include "model/LyricsFile.h"
#include "model/MainModel.h"

#include <QElapsedTimer>

#include <algorithm>
#include <chrono>

// How long the event loop may wait for a turn of the export; a single slow disk access can take longer.
static constexpr std::chrono::milliseconds longestTurn(15);

LyricsExport::LyricsExport(MainModel *model, QObject *parent)
    : QObject(parent)
    , m_model(model)
{
    m_next.setInterval(0);
    connect(&m_next, &QTimer::timeout, this, &LyricsExport::exportSome);
}

void LyricsExport::add(const QVector<quint16> &ids)
{
    QVector<quint16> queue;
    std::reverse_copy(ids.begin(), ids.end(), std::back_inserter(queue));
    m_ids = queue + m_ids;
    m_next.start();
}

void LyricsExport::exportSome()
{
    QElapsedTimer turn;
    turn.start();
    while (!m_ids.isEmpty() && turn.elapsed() < longestTurn.count())
        exportOne(m_ids.takeLast());
    if (!m_ids.isEmpty())
        return;
    m_next.stop();
    emit finished(std::exchange(m_result, {}));
}

void LyricsExport::exportOne(quint16 id)
{
    const ModelItem *item = m_model->item(id);
    if (!item || item->lyricsTag().isEmpty())
        return;
    if (m_model->generateLyricsFile(id)) {
        ++m_result.written;
    } else if (++m_result.failed == 1) {
        m_result.failedFile = lyricsFileName(item->url().toLocalFile());
    }
}
