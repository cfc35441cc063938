// SPDX-License-Identifier: MIT
#pragma once

#include "updates/ReleasedVersion.h"

#include <QByteArray>

// Reads the maker's update information, a list of versions in XML:
//
//     <UpdateInfo>
//       <VersionInfo>
//         <current>2.0.1</current>
//         <url>https://site.example/versewell_2.0.1.deb</url>
//         <changes>- a change a line</changes>
//         <date>24/12/2026</date>
//         <signature>base64</signature>
//       </VersionInfo>
//     </UpdateInfo>
//
// The text is UTF-8. The root may be missing; elements of other names are skipped, and so are versions that are not
// made of digits and dots, 32 at most. The result is sorted, the newest last; of equal versions, the one that came
// last. It holds the newest thousand. Empty when the document is not well-formed, has a document type, and so entities
// of its own, or has more than 64 attributes in a tag. Time grows in step with the document.
[[nodiscard]] ReleasedVersions readUpdateInformation(const QByteArray &document);
