// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

// Where the elements of one name end in a page, nested ones counted. The page is read once, so asking for the end of
// every element costs no more than asking for one.
//
// A tag is "<" or "</" and the name, in the given case; what follows is not looked at, so "<divider" counts as a
// "div".
class NestedElements
{
public:
    NestedElements(const QString &html, const QString &element);

    // The position of the closing tag of the element whose opening tag starts at `openingTag`, which need not be in
    // the given case; -1 when it is not closed.
    [[nodiscard]] int closingTag(int openingTag) const;

private:
    struct Tag
    {
        int position;
        // The index of the first tag, from this one on, that closes more than was opened since; the count when none
        // does.
        std::size_t outerClosing;
    };

    std::vector<Tag> m_tags;
};
