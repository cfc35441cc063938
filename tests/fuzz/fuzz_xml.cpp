// SPDX-License-Identifier: MIT
// XML documents of others, asked for paths of any form.
#include "FuzzInput.h"
#include "lyrics/XmlPaths.h"

#include <fuzzer/FuzzedDataProvider.h>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    constexpr const char *words[] = {"<a>",       "</a>",   "<b x=\"1\">", "</b>", "<a/>", "<b y='2' x='1'/>",
                                     "<![CDATA[", "]]>",    "a",           "b",    "a[0]", "b[1]",
                                     ".",         "b[x=1]", "b[x=1,y=2]"};
    FuzzedDataProvider data(bytes, size);
    const QString path = QString::fromUtf8(withWords(data.ConsumeRandomLengthString(20), words));
    const XmlPaths document(withWords(data.ConsumeRemainingBytesAsString(), words));
    const int count = document.count(path);
    require(count >= 0 && (count > 0 || document.text(path).isEmpty()) && (count == 0 || !document.isEmpty()));
    return 0;
}
