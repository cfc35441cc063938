// SPDX-License-Identifier: MIT
#include "RandomText.h"
#include "lyrics/providers/ElementFinder.h"
#include "support/TestTable.h"

#include <QRegExp>
#include <QRegularExpression>

namespace {

// The position of the tag that closes the element at the start; -1 when nothing does.
int closingTag(const QString &html, const QString &name)
{
    QRegExp tag("</?%1"_s.arg(name));
    int depth = 0;
    for (int at = tag.indexIn(html); at >= 0; at = tag.indexIn(html, at + tag.matchedLength())) {
        depth += tag.cap(0).startsWith("</"_s) ? -1 : 1;
        if (depth == 0)
            return at;
    }
    return -1;
}

// findElement(), written with the regular expressions themselves, however long they take.
QString plainlyFound(const QString &html, const QString &tag, const QStringList &classes, bool withOpeningTag)
{
    const QRegularExpression opening("<%1\\s+[^>]*class=(['\"])(.+?)\\1.*?>"_s.arg(tag),
                                     QRegularExpression::CaseInsensitiveOption);
    int offset = 0;
    for (auto match = opening.match(html); match.hasMatch(); match = opening.match(html, offset)) {
        const QStringList found = match.captured(2).split(QLatin1Char(' '));
        const bool fits = found.size() == classes.size() &&
                          std::all_of(found.begin(), found.end(),
                                      [&](const auto &name) { return classes.contains(name, Qt::CaseInsensitive); });
        if (fits) {
            // The opening tag counts without its first character, so that its letter case does not matter.
            const QString rest = QLatin1Char('<') + tag + html.mid(match.capturedStart() + tag.size() + 1);
            const int size = closingTag(rest, tag);
            const int skipped = withOpeningTag ? 0 : match.capturedLength();
            if (size > 0)
                return html.mid(match.capturedStart() + skipped, std::max(0, size - skipped));
        }
        offset += match.capturedLength();
    }
    return {};
}

} // namespace

class tst_SitePatterns : public QObject
{
    Q_OBJECT

private slots:
    void elementsAreFoundByTheirClasses()
    {
        const QString pieces = "<div~class=\"a~b\"> <DIV~class='B~A'> <div~class=\"a\"> <div~class=\"a~~b\"> "
                               "<div~class=\"a~b\"\n <div </div> </div x > \" ' a b \n"_s;
        for (const bool withTag : {false, true}) {
            const auto find = [withTag](auto finder) {
                return [=](const QString &page) {
                    return finder(page, "div"_s, {"a"_s, "B"_s}, withTag);
                };
            };
            compareOnRandomTexts(pieces, find(findElement), find(plainlyFound));
        }
    }
};

QTEST_APPLESS_MAIN(tst_SitePatterns)
#include "tst_sitepatterns.moc"
