// SPDX-License-Identifier: MIT
#pragma once

#include "tags/FileTags.h"
#include "tags/TagKind.h"

#include <QString>

#include <array>
#include <memory>

namespace tags {

// Owned copies of the tags of one file, which outlive the file and may go to another thread: nothing in it is shared
// with the original, and copying it copies the tags.
class TagCopy
{
public:
    TagCopy();
    ~TagCopy();
    TagCopy(const TagCopy &other);
    TagCopy &operator=(const TagCopy &other);
    TagCopy(TagCopy &&other) noexcept;
    TagCopy &operator=(TagCopy &&other) noexcept;

    // Of an MPEG file one ID3v2 tag: the frames of the file's own, then what is missing in it from ID3v1, then from
    // APE. Of a WAV file with an ID3v2 chunk the basic values of that, else its RIFF INFO tag, else nothing.
    static TagCopy ofFile(TagLib::File &file);

    [[nodiscard]] TagKind kind() const { return m_kind; }
    [[nodiscard]] bool isEmpty() const { return m_kind == TagKind::None; }
    [[nodiscard]] QString value(const QString &key) const;
    void setValue(const QString &key, const QString &value);

    // The tags themselves, still owned by this copy.
    [[nodiscard]] FileTags tags() const;

private:
    explicit TagCopy(std::unique_ptr<TagLib::Tag> tag);
    explicit TagCopy(const FileTags &tags);

    std::array<std::unique_ptr<TagLib::Tag>, 3> m_members;
    TagKind m_kind = TagKind::None;
};

} // namespace tags
