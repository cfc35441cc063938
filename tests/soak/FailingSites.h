// SPDX-License-Identifier: MIT
#pragma once

#include <QSemaphore>
#include <QStringList>
#include <QThread>

#include <random>

// All lyrics sites on loopback, in a thread of their own. Each answers at random: with lyrics, with nothing, with an
// error, with rubbish, late, or with half a page. `seed` settles what each of its requests gets.
class FailingSites : public QThread
{
public:
    explicit FailingSites(quint32 seed);
    ~FailingSites() override;

    // Starts the sites and has the program ask them instead of the real ones.
    void startSites();

protected:
    void run() override;

private:
    const quint32 m_seed;
    QSemaphore m_ready;
    QStringList m_bases; // in the order of the table of sites
};
