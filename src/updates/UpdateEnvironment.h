// SPDX-License-Identifier: MIT
#pragma once

#include "network/ProxyLogin.h"
#include "network/RequestLimits.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QVector>

#include <functional>
#include <limits>
#include <memory>

// What an UpdateChecker has from outside: places, keys, limits and helpers. The defaults are those of the program.
struct UpdateEnvironment
{
    UpdateEnvironment();

    // The download folder. It belongs to the checker alone: what is older than the program is deleted there.
    QString folder;
    // The maker's public keys, 32 bytes each; without one nothing is ever installed.
    QVector<QByteArray> keys;
    // Hands a setup file, by its absolute path, to the desktop. Reports once, at once or later, whether somebody took
    // it.
    std::function<void(const QString &path, const std::function<void(bool)> &report)> open;
    std::function<QDateTime()> now;
    RequestLimits limits;
    // Shared with the program's other access managers.
    std::shared_ptr<ProxyLogin> proxyLogin = std::make_shared<ProxyLogin>();
    // No setup file is larger. The program's progress counts in int, and an endless one must not fill the disk.
    qint64 mostSetupBytes = std::numeric_limits<int>::max();
    // Part of the user agent.
    QString userAgentText;
};
