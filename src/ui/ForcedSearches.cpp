// SPDX-License-Identifier: MIT
#include "ui/ForcedSearches.h"

#include "model/MainModel.h"
#include "ui/UnsavedLyricsGuard.h"

#include <QElapsedTimer>

#include <algorithm>
#include <chrono>

// How long the event loop may wait for a slice.
static constexpr std::chrono::milliseconds longestSlice(15);

ForcedSearches::ForcedSearches(MainModel *model, UnsavedLyricsGuard *guard, QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_guard(guard)
{
    m_next.setInterval(0);
    connect(&m_next, &QTimer::timeout, this, &ForcedSearches::forceSome);
}

void ForcedSearches::add(const QVector<quint16> &ids)
{
    m_guard->beforeSearching(ids, [this, ids] { queue(ids); });
}

void ForcedSearches::queue(const QVector<quint16> &ids)
{
    QVector<quint16> reversed = ids;
    std::reverse(reversed.begin(), reversed.end());
    m_ids = reversed + m_ids;
    m_next.start();
    forceSome();
}

void ForcedSearches::forceSome()
{
    QElapsedTimer slice;
    slice.start();
    while (!m_ids.isEmpty() && slice.elapsed() < longestSlice.count())
        m_model->startSearch(m_ids.takeLast());
    if (m_ids.isEmpty())
        m_next.stop();
}
