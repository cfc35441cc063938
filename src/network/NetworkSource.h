// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class QNetworkAccessManager;

// The access manager that somebody's requests go through, or a promise of one: it is made with the first request, since
// making the first one of a program loads plugins and takes a tenth of its start. A value; copies name the same
// manager.
class NetworkSource
{
public:
    using Make = std::function<QNetworkAccessManager *()>;

    // The manager is not owned. Meant to be implicit: a manager is the plainest source.
    NetworkSource(QNetworkAccessManager *manager = nullptr);
    // Asks `make` whenever the manager is wanted. It owns the manager and gives the same each time.
    [[nodiscard]] static NetworkSource later(Make make);

    // Null when there is none, or when it has gone.
    [[nodiscard]] QNetworkAccessManager *manager() const { return m_make(); }

private:
    Make m_make;
};
