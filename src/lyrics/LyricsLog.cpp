// SPDX-License-Identifier: MIT
#include "lyrics/LyricsLog.h"

#include <QMetaEnum>
#include <QNetworkReply>

Q_LOGGING_CATEGORY(lyricsLog, "versewell.lyrics")

QByteArray failureForLog(const QNetworkReply &reply)
{
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (status >= 400)
        return "answered with HTTP status " + QByteArray::number(status);
    const QByteArray error = QMetaEnum::fromType<QNetworkReply::NetworkError>().valueToKey(reply.error());
    return (status > 0 ? "gave an answer that failed (" : "did not answer (") + error + ')';
}
