// SPDX-License-Identifier: MIT
#pragma once

#include <QLockFile>

// Sees to it that only one Versewell works on a set of settings: holds a lock file as long as it lives.
//
// A lock left behind by a process that is gone does not count, wherever it ran, and a lock that cannot be made at all
// (no space, no permission) keeps nobody from starting. No message is passed to the instance that holds the lock.
class SingleInstance
{
public:
    // Tries to take the lock; its folder is made when it is missing.
    explicit SingleInstance(const QString &lockFile);

    // Whether another process holds the lock.
    [[nodiscard]] bool isOtherRunning() const { return m_otherRunning; }

    // Whether this process holds it. Neither is true where the lock could not be made.
    [[nodiscard]] bool isHolder() const { return m_lock.isLocked(); }

    // Lets go of the lock, for a process that is to take this one's place.
    void release() { m_lock.unlock(); }

private:
    // Whether the file was one that nobody held any more, and the lock is ours now.
    bool takeLeftLock(const QString &lockFile);

    QLockFile m_lock;
    bool m_otherRunning = false;
};
