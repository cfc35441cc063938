// SPDX-License-Identifier: MIT
#include "model/RemovedItems.h"

#include <QDeadlineTimer>

#include <chrono>
#include <iterator>
#include <utility>

// How long one turn of the event loop deletes: a quarter of a frame.
constexpr std::chrono::milliseconds turnTime(4);

void RemovedItems::add(Items items)
{
    m_items.insert(m_items.end(), std::make_move_iterator(items.begin()), std::make_move_iterator(items.end()));
    if (!m_items.empty() && !m_nextTurn.isActive())
        m_nextTurn.start(0, this);
}

void RemovedItems::timerEvent(QTimerEvent *)
{
    const QDeadlineTimer turnEnd(turnTime);
    while (!m_items.empty() && !turnEnd.hasExpired())
        m_items.pop_back();
    if (!m_items.empty())
        return;
    m_nextTurn.stop();
    m_items.shrink_to_fit();
}
