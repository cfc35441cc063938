// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

// Turns SIGTERM, SIGINT and SIGHUP, the end of the terminal, into a Qt signal of the thread that made it, but for those
// that the process was started to ignore. One object a process.
class TerminationSignals : public QObject
{
    Q_OBJECT

public:
    explicit TerminationSignals(QObject *parent = nullptr);
    ~TerminationSignals() override;

signals:
    void received();
};
