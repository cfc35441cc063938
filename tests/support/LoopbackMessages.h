// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QMetaType>
#include <QPair>
#include <QString>
#include <QUrlQuery>

#include <chrono>

using LoopbackHeaders = QList<QPair<QByteArray, QByteArray>>;

// One request as the server received it.
struct LoopbackRequest
{
    QByteArray method;
    QByteArray target; // as sent: encoded path and query
    QString path;      // decoded, without the query
    QUrlQuery query;
    LoopbackHeaders headers; // in the order in which they came
    QByteArray body;

    // The value of the first header with this name, in any letter case; null when there is none.
    [[nodiscard]] QByteArray header(const QByteArray &name) const;
};

// One answer, and how badly it is delivered. "Content-Length" is added from the body unless the headers hold it or
// "Transfer-Encoding", or unless `untilClose` is set.
struct LoopbackResponse
{
    int status = 200;
    LoopbackHeaders headers = {};
    QByteArray body = {};

    std::chrono::milliseconds delay{0};        // before the status line
    std::chrono::milliseconds dripInterval{0}; // above 0: the body goes out byte by byte, this far apart
    qint64 cutAfter = -1;                      // from 0 on: the connection is closed after so many bytes of the body
    bool untilClose = false;                   // no length is sent; the closed connection ends the body
    bool hang = false;                         // nothing is ever sent, the connection stays open

    [[nodiscard]] static LoopbackResponse page(const QByteArray &body);
    [[nodiscard]] static LoopbackResponse error(int status);
    [[nodiscard]] static LoopbackResponse redirect(int status, const QByteArray &location);
    [[nodiscard]] static LoopbackResponse hanging();
    // A copy with one more header.
    [[nodiscard]] LoopbackResponse with(const QByteArray &header, const QByteArray &value) const;
};

Q_DECLARE_METATYPE(LoopbackResponse)
