// SPDX-License-Identifier: MIT
#include "ui/LyricsExport.h"

#include "model/MainModel.h"

#include <QElapsedTimer>

#include <algorithm>
#include <chrono>
#include <utility>

// How long the event loop may wait for a turn of the export.
static constexpr std::chrono::milliseconds longestTurn(15);

LyricsExport::LyricsExport(MainModel *model, QObject *parent)
    : QObject(parent)
    , m_model(model)
{
    m_next.setInterval(0);
    connect(&m_next, &QTimer::timeout, this, &LyricsExport::exportSome);
    connect(m_model, &MainModel::lyricsExported, this,
            [this](quint16, const QString &textFile, bool isWritten) { note(textFile, isWritten); });
    connect(m_model, &MainModel::automaticExportFailed, this, &LyricsExport::noteAutomaticFailure);
}

void LyricsExport::add(const QVector<quint16> &ids)
{
    QVector<quint16> queue;
    std::reverse_copy(ids.begin(), ids.end(), std::back_inserter(queue));
    m_ids = queue + m_ids;
    m_automatic = {};
    m_next.start();
}

void LyricsExport::queueRest()
{
    m_next.stop();
    while (!m_ids.isEmpty())
        exportOne(m_ids.takeLast());
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
    finishIfDone();
}

void LyricsExport::exportOne(quint16 id)
{
    if (m_model->generateLyricsFile(id))
        ++m_inWriting;
}

void LyricsExport::note(const QString &textFile, bool isWritten)
{
    --m_inWriting;
    if (isWritten)
        ++m_result.written;
    else if (++m_result.failed == 1)
        m_result.failedFile = textFile;
    finishIfDone();
}

void LyricsExport::noteAutomaticFailure(const QString &textFile)
{
    if (++m_automatic.failed == 1)
        m_automatic.failedFile = textFile;
    emit finished(m_automatic);
}

void LyricsExport::finishIfDone()
{
    if (m_inWriting == 0 && m_ids.isEmpty())
        emit finished(std::exchange(m_result, {}));
}
