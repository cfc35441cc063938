// SPDX-License-Identifier: MIT
#include "lyrics/providers/TextSearch.h"

#include <algorithm>
#include <functional>

namespace {

using Searcher = std::boyer_moore_searcher<const ushort *>;

Searcher searcherFor(const QString &part)
{
    return Searcher(part.utf16(), part.utf16() + part.size());
}

} // namespace

bool holdsText(const QString &text, const QString &part)
{
    const ushort *const end = text.utf16() + text.size();
    return part.isEmpty() || (part.size() <= text.size() && std::search(text.utf16(), end, searcherFor(part)) != end);
}

QString withoutText(const QString &text, const QString &part)
{
    const Searcher searcher = searcherFor(part);
    const ushort *from = text.utf16();
    const ushort *const end = from + text.size();
    QString rest;
    rest.reserve(text.size());
    for (const ushort *at = from; at != end;) {
        at = std::search(from, end, searcher);
        rest += QStringView(from, at - from);
        from = at == end ? end : at + part.size();
    }
    return rest;
}
