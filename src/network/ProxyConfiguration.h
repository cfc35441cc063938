// SPDX-License-Identifier: MIT
#pragma once

#include <QNetworkProxy>
#include <QString>

// What the user says about a proxy, and the one way to make a proxy of it: for the stored preferences as well as for
// what is being typed. A plain value.
struct ProxyConfiguration
{
    // As they are stored; any other number counts as None.
    enum Type { None = 0, Socks5 = 1, Http = 2 };

    int type = None;
    QString address; // host name or IP address
    quint16 port = 0;
    bool authentication = false; // whether the user name and the password are sent to the proxy
    QString username;
    QString password;

    // A type other than None without an address gives the default-constructed proxy, which stands for the
    // application's default. Without a user name no password is passed either.
    [[nodiscard]] QNetworkProxy toProxy() const;
};
