// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

// Asks a service for better names of a song, for one song at a time. Lives in the thread of the coordinator; nothing
// blocks, and there is no time-out of its own.
class TagCorrector : public QObject
{
    Q_OBJECT

public:
    explicit TagCorrector(QObject *parent = nullptr);

    // Starts a correction. False, and nothing is emitted, when the names are no good for one.
    virtual bool correct(const QString &artist, const QString &title) = 0;
    [[nodiscard]] virtual bool isBusy() const = 0;
    // Gives up the request in flight, so that finished() is not emitted for it; false when there is none.
    virtual bool abort() = 0;
    // A new idle corrector of the same kind with the same access manager; `parent` owns it.
    [[nodiscard]] virtual TagCorrector *clone(QObject *parent) const = 0;
    // Why the last correction failed; empty when it did not.
    [[nodiscard]] virtual QString errorString() const = 0;

signals:
    // Once for each accepted correction. Both lists have the same length, entry i of each makes one pair; the best
    // pair comes first.
    void finished(const QStringList &artists, const QStringList &titles);
};
