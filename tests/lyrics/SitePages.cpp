// SPDX-License-Identifier: MIT
#include "SitePages.h"

#include <QFile>

namespace {

QString furniture()
{
    QString html;
    for (int i = 0; i < 120; ++i)
        html += QStringLiteral("<div class=\"menu\"><a href=\"/top/%1/\" class=\"menu__link\">Top %1</a><!-- %1 -->"
                               "<script>q(%1 < 3 ? '<b>' : \"\");</script></div>\n")
                    .arg(i);
    return html;
}

} // namespace

QString sitePage(const QByteArray &site, const QByteArray &name)
{
    QFile file(
        QStringLiteral(VERSEWELL_TEST_DATA_DIR "/%1/%2").arg(QString::fromLatin1(site), QString::fromLatin1(name)));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.readAll()).replace(QStringLiteral("@FURNITURE@"), furniture());
}

QString harbourLights()
{
    return QStringLiteral("Harbour lights are counting slow,\none for every boat below & above,\n"
                          "I've a lantern made of tin,\nhalf a match to let light in.\n\n"
                          "Огни горят, и гавань спит,\nהים שקט והרוח באה,\n🎵 la la, 100% sure 🎵");
}

QString repeated(const QString &piece, int size)
{
    return piece.repeated(size / piece.size());
}

QString repeated(const char *piece, int size)
{
    return repeated(QString::fromUtf8(piece), size);
}
