// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// The pages that the tests of site clients share.

// The page of tests/data/<site>/<name>, for HTML with as many menus and scripts around it as a real page has. Empty
// when there is no such file.
[[nodiscard]] QString sitePage(const QByteArray &site, const QByteArray &name);

// The lyrics of the song "Harbour Lights" by "Tin Lanterns", which the fixture pages of every site hold: entities,
// several scripts, an emoji.
[[nodiscard]] QString harbourLights();

// As many characters as the largest page that is read.
constexpr int hostileSize = 1024 * 1024;

// `piece` again and again, up to `size` characters: a page that a site with bad intent could send.
[[nodiscard]] inline QString repeated(const QString &piece, int size = hostileSize)
{
    return piece.repeated(size / piece.size());
}
