// SPDX-License-Identifier: MIT
#include "lyrics/PageCharset.h"

#include <QRegularExpression>
#include <QString>
#include <QTextCodec>

#include <algorithm>

namespace {

// One character beyond ASCII in so many may be broken; of a text in another charset nearly all are.
constexpr int wholeForABrokenOne = 10;

// The number of this charset by IANA.
constexpr int mibOfUtf8 = 106;

bool isUtf8(const QByteArray &bytes)
{
    QTextCodec::ConverterState state;
    const QString text = QTextCodec::codecForMib(mibOfUtf8)->toUnicode(bytes.constData(), bytes.size(), &state);
    const auto beyondAscii = std::count_if(text.begin(), text.end(), [](QChar c) { return c.unicode() > 0x7F; });
    return state.invalidChars <= beyondAscii / wholeForABrokenOne;
}

// Null when the header names none that is known.
QTextCodec *codecOfHeader(const QByteArray &contentType)
{
    static const QRegularExpression charset(QStringLiteral("charset\\s*=\\s*[\"']?([^\\s\"';,]+)"),
                                            QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = charset.match(QString::fromLatin1(contentType));
    return match.hasMatch() ? QTextCodec::codecForName(match.captured(1).toLatin1()) : nullptr;
}

} // namespace

QByteArray pageInUtf8(const QByteArray &page, const QByteArray &contentType)
{
    if (isUtf8(page))
        return page;
    const QTextCodec *codec = codecOfHeader(contentType);
    if (!codec || codec->mibEnum() == mibOfUtf8)
        codec = QTextCodec::codecForHtml(page, nullptr);
    return codec ? codec->toUnicode(page).toUtf8() : page;
}
