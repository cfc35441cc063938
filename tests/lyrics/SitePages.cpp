// SPDX-License-Identifier: MIT
#include "SitePages.h"

#include <QFile>

QString sitePage(const QByteArray &site, const QByteArray &name)
{
    QFile file(QStringLiteral(VERSEWELL_TEST_DATA_DIR "/") + QString::fromLatin1(site + '/' + name));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    // As sites with break tags have them.
    const QString lyrics = QStringLiteral("Harbour lights are counting slow,<br>\none for every boat below &amp; above,"
                                          "<br/>\nI&#39;ve a lantern made of tin,<br />\n<i>half a match</i> to let "
                                          "light in.<br>\n<br>\n<b>Огни горят, и гавань спит,</b><br>\n"
                                          "הים שקט והרוח באה,<br>\n&#127925; la la, 100% sure 🎵");
    const QString page = QString::fromUtf8(file.readAll()).replace(QStringLiteral("@LYRICS@"), lyrics);
    if (!name.endsWith(".html"))
        return page;
    QString menu;
    for (int i = 0; i < 120; ++i)
        menu += QStringLiteral("<div class=\"menu\"><a href=\"/top/%1/\" class=\"menu__link\">Top %1</a><!-- %1 -->"
                               "<script>q(%1 < 3 ? '<b>' : \"\");</script></div>\n")
                    .arg(i);
    return QStringLiteral("<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\"><title>Harbour Lights</title></head>\n"
                          "<body><div class=\"nav\">%1</div>\n%2<div class=\"footer\">%1</div></body></html>\n")
        .arg(menu, page);
}

QString harbourLights()
{
    return QStringLiteral("Harbour lights are counting slow,\none for every boat below & above,\n"
                          "I've a lantern made of tin,\nhalf a match to let light in.\n\n"
                          "Огни горят, и гавань спит,\nהים שקט והרוח באה,\n🎵 la la, 100% sure 🎵");
}
