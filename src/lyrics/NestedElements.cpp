// SPDX-License-Identifier: MIT
#include "lyrics/NestedElements.h"

#include <QStringView>

#include <algorithm>

NestedElements::NestedElements(const QString &html, const QString &element)
{
    const QString closing = QLatin1Char('/') + element;
    std::vector<bool> closes;
    for (int at = html.indexOf(QLatin1Char('<')); at >= 0; at = html.indexOf(QLatin1Char('<'), at + 1)) {
        const QStringView rest = QStringView(html).mid(at + 1);
        const bool closingTagHere = rest.startsWith(closing);
        if (!closingTagHere && !rest.startsWith(element))
            continue;
        m_tags.push_back({at, 0});
        closes.push_back(closingTagHere);
    }
    // Backwards: behind an opening tag, the first closing that is one too many is its own; the next such one is ours.
    const std::size_t none = m_tags.size();
    const auto outerClosingFrom = [&](std::size_t i) {
        return i < none ? m_tags[i].outerClosing : none;
    };
    for (std::size_t i = none; i-- > 0;) {
        const std::size_t own = outerClosingFrom(i + 1);
        m_tags[i].outerClosing = closes[i] ? i : own == none ? none : outerClosingFrom(own + 1);
    }
}

int NestedElements::closingTag(int openingTag) const
{
    const auto inside = std::upper_bound(m_tags.begin(), m_tags.end(), openingTag,
                                         [](int position, const Tag &tag) { return position < tag.position; });
    if (inside == m_tags.end() || inside->outerClosing == m_tags.size())
        return -1;
    return m_tags[inside->outerClosing].position;
}
