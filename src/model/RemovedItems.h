// SPDX-License-Identifier: MIT
#pragma once

#include "model/ModelItem.h"

#include <QObject>

#include <memory>
#include <vector>

// Deletes items that have left the list, and then itself: in blocks, from the event loop, so that the window lives on
// while tens of thousands of them go. None is deleted before control is back there, since the scene may still hold
// them. What is left when the parent goes is deleted with it.
class RemovedItems : public QObject
{
public:
    RemovedItems(std::vector<std::unique_ptr<ModelItem>> items, QObject *parent);

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    std::vector<std::unique_ptr<ModelItem>> m_items;
};
