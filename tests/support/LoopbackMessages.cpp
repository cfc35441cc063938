// SPDX-License-Identifier: MIT
#include "support/LoopbackMessages.h"

QByteArray LoopbackRequest::header(const QByteArray &name) const
{
    for (const auto &[key, value] : headers) {
        if (key.compare(name, Qt::CaseInsensitive) == 0)
            return value;
    }
    return {};
}

LoopbackResponse LoopbackResponse::page(const QByteArray &body)
{
    LoopbackResponse response;
    response.body = body;
    return response.with("Content-Type", "text/html; charset=utf-8");
}

LoopbackResponse LoopbackResponse::error(int status)
{
    LoopbackResponse response = page("<html><body>error " + QByteArray::number(status) + "</body></html>");
    response.status = status;
    return response;
}

LoopbackResponse LoopbackResponse::redirect(int status, const QByteArray &location)
{
    LoopbackResponse response;
    response.status = status;
    return response.with("Location", location);
}

LoopbackResponse LoopbackResponse::hanging()
{
    LoopbackResponse response;
    response.hang = true;
    return response;
}

LoopbackResponse LoopbackResponse::with(const QByteArray &header, const QByteArray &value) const
{
    LoopbackResponse response = *this;
    response.headers.append(qMakePair(header, value));
    return response;
}
