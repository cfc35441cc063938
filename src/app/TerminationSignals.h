// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

// Turns SIGTERM and SIGINT into a Qt signal of the thread that made it. One object a process.
class TerminationSignals : public QObject
{
    Q_OBJECT

public:
    explicit TerminationSignals(QObject *parent = nullptr);
    ~TerminationSignals() override;

signals:
    void received();
};
