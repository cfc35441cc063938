// SPDX-License-Identifier: MIT
#include "model/RemovedItems.h"

#include <algorithm>
#include <utility>

// How many are deleted in one turn of the event loop: a few milliseconds of work.
constexpr std::size_t blockSize = 1000;

RemovedItems::RemovedItems(std::vector<std::unique_ptr<ModelItem>> items, QObject *parent)
    : QObject(parent)
    , m_items(std::move(items))
{
    startTimer(0);
}

void RemovedItems::timerEvent(QTimerEvent *)
{
    m_items.resize(m_items.size() - std::min(blockSize, m_items.size()));
    if (m_items.empty())
        deleteLater();
}
