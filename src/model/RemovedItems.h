// SPDX-License-Identifier: MIT
#pragma once

#include "model/ModelItem.h"

#include <QBasicTimer>
#include <QObject>

#include <memory>
#include <vector>

// Deletes items that have left the list: from the event loop and a few milliseconds a turn, so that the window lives on
// while tens of thousands of them go, however many removals they come from. None is deleted before control is back
// there, since the scene may still hold them. What is left when this object goes is deleted with it. Main thread only.
class RemovedItems : public QObject
{
public:
    using Items = std::vector<std::unique_ptr<ModelItem>>;

    using QObject::QObject;

    void add(Items items);

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    Items m_items;
    QBasicTimer m_nextTurn; // runs while there are items
};
