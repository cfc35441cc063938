// SPDX-License-Identifier: MIT
// XML documents of others, asked for paths of any form.
#include "lyrics/XmlPaths.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <array>
#include <cstdlib>

namespace {

// Tags and paths are rare in random bytes: one byte stands for each.
QByteArray textOf(const std::string &bytes)
{
    constexpr std::array words{"<a>", "</a>", "<b x=\"1\">", "</b>", "<a/>", "<b y='2' x='1'/>", "<![CDATA[", "]]>",
                               "a",   "b",    "a[0]",        "b[1]", ".",    "b[x=1]",           "b[x=1,y=2]"};
    QByteArray text;
    for (const char byte : bytes) {
        const auto index = static_cast<unsigned char>(byte);
        text += index < words.size() ? QByteArray(words[index]) : QByteArray(1, byte);
    }
    return text;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    FuzzedDataProvider data(bytes, size);
    const QString path = QString::fromUtf8(textOf(data.ConsumeRandomLengthString(20)));
    const XmlPaths document(textOf(data.ConsumeRemainingBytesAsString()));
    const int count = document.count(path);
    if (count < 0 || (count == 0 && !document.text(path).isEmpty()) || (document.isEmpty() && count > 0))
        std::abort();
    return 0;
}
