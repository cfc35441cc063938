// SPDX-License-Identifier: MIT
#include "lyrics/providers/ElementFinder.h"

#include "lyrics/NestedElements.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace {

const QLatin1String classAttribute("class=");

// Where a piece stands in a text.
class Places
{
public:
    Places(const QString &text, QLatin1String piece)
        : m_none(text.size())
    {
        for (int at = text.indexOf(piece); at >= 0; at = text.indexOf(piece, at + 1))
            m_places.push_back(at);
    }

    // The first place from `from` on; the size of the text when there is none.
    [[nodiscard]] int next(int from) const
    {
        const auto place = std::lower_bound(m_places.begin(), m_places.end(), from);
        return place == m_places.end() ? m_none : *place;
    }

    // The last place before `limit`, -1 when there is none.
    [[nodiscard]] int lastBefore(int limit) const
    {
        const auto place = std::lower_bound(m_places.begin(), m_places.end(), limit);
        return place == m_places.begin() ? -1 : *(place - 1);
    }

private:
    std::vector<int> m_places;
    int m_none;
};

// The opening tags of one name that have a class attribute, as `<name\s+[^>]*class=(['"])(.+?)\1.*?>` finds them: of
// several attributes the last one that will do, its value and what follows on one line.
class ClassedTags
{
public:
    struct Tag
    {
        int position;
        int length;
        // The value of the attribute.
        int valueBegin;
        int valueEnd;
    };

    ClassedTags(const QString &html, const QString &name)
        : m_text(asciiLower(html))
        , m_tagEnds(m_text, QLatin1String(">"))
        , m_lineEnds(m_text, QLatin1String("\n"))
        , m_attributes(m_text, classAttribute)
        , m_doubleQuotes(m_text, QLatin1String("\""))
        , m_singleQuotes(m_text, QLatin1String("'"))
    {
        const QString opening = QLatin1Char('<') + name;
        for (int at = m_text.indexOf(opening); at >= 0; at = m_text.indexOf(opening, at + 1))
            addTag(at, at + opening.size());
    }

    // The first one from `from` on; null when there is none.
    [[nodiscard]] const Tag *next(int from) const
    {
        const auto tag = std::lower_bound(m_tags.begin(), m_tags.end(), from,
                                          [](const Tag &left, int position) { return left.position < position; });
        return tag == m_tags.end() ? nullptr : &*tag;
    }

private:
    struct Attribute
    {
        int position;
        int valueEnd;
        int tagEnd;
    };

    void addTag(int position, int nameEnd)
    {
        int begin = nameEnd;
        while (begin < m_text.size() && isAsciiSpace(m_text.at(begin)))
            ++begin;
        if (begin == nameEnd)
            return;
        // Tags within one another end at the same place, so what was found for the outer one holds for the inner.
        const int limit = m_tagEnds.next(begin);
        if (limit != m_limit)
            m_attribute = lastAttribute(begin, limit);
        m_limit = limit;
        if (m_attribute && m_attribute->position >= begin)
            m_tags.push_back({position, m_attribute->tagEnd + 1 - position,
                              m_attribute->position + classAttribute.size() + 1, m_attribute->valueEnd});
    }

    [[nodiscard]] std::optional<Attribute> lastAttribute(int begin, int limit) const
    {
        for (int at = m_attributes.lastBefore(limit); at >= begin; at = m_attributes.lastBefore(at)) {
            const std::optional<Attribute> attribute = attributeAt(at);
            if (attribute)
                return attribute;
        }
        return std::nullopt;
    }

    [[nodiscard]] std::optional<Attribute> attributeAt(int position) const
    {
        const int valueBegin = position + classAttribute.size() + 1;
        const QChar quote = valueBegin <= m_text.size() ? m_text.at(valueBegin - 1) : QChar();
        if (quote != QLatin1Char('"') && quote != QLatin1Char('\''))
            return std::nullopt;
        const Places &quotes = quote == QLatin1Char('"') ? m_doubleQuotes : m_singleQuotes;
        const int valueEnd = quotes.next(valueBegin + 1);
        const int tagEnd = m_tagEnds.next(valueEnd + 1);
        if (tagEnd >= m_text.size() || m_lineEnds.next(valueBegin) < tagEnd)
            return std::nullopt;
        return Attribute{position, valueEnd, tagEnd};
    }

    static bool isAsciiSpace(QChar c) { return c.unicode() < 0x80 && c.isSpace(); }

    QString m_text;
    Places m_tagEnds;
    Places m_lineEnds;
    Places m_attributes;
    Places m_doubleQuotes;
    Places m_singleQuotes;
    std::vector<Tag> m_tags;
    // What was found last, and for which end of the tag.
    std::optional<Attribute> m_attribute;
    int m_limit = -1;
};

// Whether a class attribute of this value has as many classes as are wanted, and only those.
bool fits(const QString &value, const QStringList &classes)
{
    if (value.count(QLatin1Char(' ')) + 1 != classes.size())
        return false;
    const QStringList found = value.split(QLatin1Char(' '));
    return std::all_of(found.begin(), found.end(),
                       [&classes](const QString &name) { return classes.contains(name, Qt::CaseInsensitive); });
}

} // namespace

QString findElement(const QString &html, const QString &tag, const QStringList &classes, bool withOpeningTag)
{
    if (!html.contains(classAttribute, Qt::CaseInsensitive))
        return {};
    const ClassedTags tags(html, tag);
    const NestedElements elements(html, tag);
    int offset = 0;
    while (const ClassedTags::Tag *found = tags.next(offset)) {
        const QString value = html.mid(found->valueBegin, found->valueEnd - found->valueBegin);
        const int end = fits(value, classes) ? elements.closingTag(found->position) : -1;
        if (end > 0) {
            const int begin = found->position + (withOpeningTag ? 0 : found->length);
            return html.mid(begin, std::max(0, end - begin));
        }
        offset = offsetBehind(offset, found->position, found->length);
    }
    return {};
}

int offsetBehind(int offset, int position, int length)
{
    return offset + ((position - offset) / length + 1) * length;
}

QString asciiLower(const QString &text)
{
    QString lower = text;
    for (QChar &c : lower) {
        if (c >= QLatin1Char('A') && c <= QLatin1Char('Z'))
            c = QChar(c.unicode() | 0x20);
    }
    return lower;
}
