// SPDX-License-Identifier: MIT
#include "lyrics/providers/GeniusContainers.h"

#include "lyrics/ChainScan.h"
#include "lyrics/LyricsText.h"

#include <QStringView>

namespace {

// Longer names than this are no names: they would be compared with the page again and again.
constexpr int longestElementName = 1000;

// Counts the nested elements of one name in a page, tag by tag.
class ElementCount
{
public:
    ElementCount(const QString &page, int start, const QString &name)
        : m_page(page)
        , m_opening(QLatin1Char('<') + name)
        , m_closing(QStringLiteral("</") + name)
        , m_nameLooksClosed(name.endsWith(QLatin1String("/>")))
        , m_at(start)
    {
    }

    // Where the element that begins here ends: behind the name of its closing tag. -1 when it is not closed.
    int elementEnd()
    {
        int depth = 0;
        while (toNextTag()) {
            if (!skipSelfClosing())
                depth += skipTag();
            if (depth == 0)
                return m_at;
        }
        return -1;
    }

private:
    [[nodiscard]] bool standsHere(const QString &tag) const { return QStringView(m_page).mid(m_at).startsWith(tag); }

    bool toNextTag()
    {
        m_at = m_page.indexOf(QLatin1Char('<'), m_at);
        while (m_at >= 0 && !standsHere(m_opening) && !standsHere(m_closing))
            m_at = m_page.indexOf(QLatin1Char('<'), m_at + 1);
        return m_at >= 0;
    }

    // An opening tag that ends with "/>", with at least one character between it and the name.
    bool skipSelfClosing()
    {
        if (!standsHere(m_opening))
            return false;
        const int nameEnd = m_at + m_opening.size();
        if (m_tagEnd < nameEnd && m_tagEnd < m_page.size()) {
            const int end = m_page.indexOf(QLatin1Char('>'), nameEnd);
            m_tagEnd = end < 0 ? m_page.size() : end;
        }
        if (m_tagEnd == m_page.size() || m_tagEnd < nameEnd + 2 || m_page.at(m_tagEnd - 1) != QLatin1Char('/'))
            return false;
        m_at = m_tagEnd + 1;
        return true;
    }

    // By how much the tag changes the depth.
    int skipTag()
    {
        const bool opens = standsHere(m_opening);
        m_at += opens ? m_opening.size() : m_closing.size();
        return m_nameLooksClosed ? 0 : opens ? 1 : -1;
    }

    const QString &m_page;
    QString m_opening;
    QString m_closing;
    bool m_nameLooksClosed;
    int m_at;
    // The first ">" behind the last name that was looked at; the size of the page when there is none.
    int m_tagEnd = -1;
};

// The whole element that begins at `start`, without the ">" of its closing tag; empty when it is not closed. Its name
// goes up to the first space, whatever is in it; that is deliberate.
QString elementAt(const QString &page, int start)
{
    const int nameLength = page.indexOf(QLatin1Char(' '), start + 1) - start - 1;
    if (nameLength <= 0 || nameLength > longestElementName)
        return {};
    const int end = ElementCount(page, start, page.mid(start + 1, nameLength)).elementEnd();
    return end < 0 ? QString() : page.mid(start, end - start);
}

// A block that begins and ends on one line, such as a header inside a container, is no lyrics.
QString withoutBlocksOnOneLine(const QString &html)
{
    static const ChainPattern block(QStringLiteral("<div[^\n]*</div>"));
    const ChainScan blocks(block, html);
    QString text;
    int copied = 0;
    for (auto match = blocks.next(); match; match = blocks.next(match->end())) {
        text.append(QStringView(html).mid(copied, match->position - copied)).append(QLatin1Char('\n'));
        copied = match->end();
    }
    return text.append(QStringView(html).mid(copied));
}

// `markup` is the container without blocks on one line.
QString lyricsOfContainer(const QString &markup)
{
    const QString decoded = decodeHtmlEntities(decodeDecimalReferences(stripTags(markup).trimmed()));
    // The container's own closing tag has lost its ">", so that it is no tag and stays until here.
    return decoded.split(QStringLiteral("</div")).join(QString());
}

} // namespace

QString withPlainBreaksAsNewlines(const QString &html)
{
    const QString newline = QStringLiteral("\n");
    return html.split(QStringLiteral("<br>")).join(newline).split(QStringLiteral("<br/>")).join(newline);
}

ProviderStep readGeniusContainers(const QString &songPage)
{
    static const ChainPattern openingTag(QStringLiteral("<div[^>]*class=\"Lyrics__Container.*>"));
    const ChainScan containers(openingTag, songPage);
    QString lyrics;
    QString markup;
    int searched = 0;
    while (const auto container = containers.next(searched)) {
        const QString element = elementAt(songPage, container->position);
        if (element.isEmpty()) {
            if (songPage.contains(QLatin1String("</html"), Qt::CaseInsensitive))
                break;                            // bad markup behind the words
            return ProviderStep::notUnderstood(); // the page was cut off, and half a song is none
        }
        const QString fragment = withoutBlocksOnOneLine(withPlainBreaksAsNewlines(withoutScriptsAndStyles(element)));
        const QString text = lyricsOfContainer(fragment);
        if (!text.isEmpty() && !lyrics.isEmpty())
            lyrics += QLatin1String("\r\n");
        lyrics += text;
        markup += fragment;
        searched = container->position + element.size();
    }
    return ProviderStep::lyrics(lyrics, markup);
}
