// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <chrono>

// A page is collected and limited; a download is handed on as it comes, however large it is and however long it takes.
enum class RequestKind { Page, Download };

// What one request may cost, from the moment in which it is sent: waiting for its turn (RequestQueue) does not count.
// The clients have no time-outs of their own: these are the only ones.
struct RequestLimits
{
    std::chrono::milliseconds idle = std::chrono::seconds(60);   // without any progress, in either direction
    std::chrono::milliseconds total = std::chrono::seconds(120); // from the sending to the last byte
    qint64 bodyBytes = 1024LL * 1024;                            // after inflation; song pages have 20 to 300 kB
};
