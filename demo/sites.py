# SPDX-License-Identifier: MIT
"""The lyrics sites and the name service of the demo, with pages of the shape that the program's clients read.

Each site knows some songs: a dict of (artist, title) -> words.
"""
import html
import json
import re

from server import Answer

FURNITURE = """\
<!DOCTYPE html>
<html lang="en"><head><meta charset="utf-8"><title>{title}</title>
<script>var page = {{"rows": "<div class='x'></div>", "n": 1 < 2}};</script>
<style>.menu {{ color: #333 }}</style></head>
<body>
<div class="header"><form action="/search.php"><input name="q"></form>
<ul class="menu"><li><a href="/a/" class="letter">A</a></li><li><a href="/top/" class="song">Top 100%</a></li></ul></div>
"""
FOOTER = """
<div class="footer"><!-- about --><a href="/about.html">About</a> &middot; &copy; nobody</div>
<script>window.done = true;</script>
</body></html>
"""
NOT_FOUND = Answer(b"<html><body>Not found</body></html>", 404)


def page(title, content):
    return Answer((FURNITURE.format(title=html.escape(title)) + content + FOOTER).encode())


def with_breaks(words, tag="<br>\n"):
    return html.escape(words).replace("\n", tag)


class Site:
    """A search and one page a song, which most sites have; a subclass says how each looks."""

    endpoints = ()
    # The path of the search, and of the page of the song with a number.
    search_path = "/search"
    song_path = "/song/{}.html"

    def __init__(self, lyrics):
        self.songs = list(lyrics.items())

    def answer(self, request):
        if re.fullmatch(self.search_path, request.path):
            return self.search_page(request)
        number = re.fullmatch(self.song_path.format(r"(\d+)"), request.path)
        if number and int(number[1]) < len(self.songs):
            return self.song_page(int(number[1]), *self.songs[int(number[1])])
        return NOT_FOUND

    def found(self, wanted):
        """The address and the names of each song whose title stands in the text that is searched for."""
        return [(self.song_path.format(number), *map(html.escape, names)) for number, (names, _) in enumerate(self.songs)
                if names[1].lower() in wanted.lower()]


class LyricsFreakSite(Site):
    """Looks for titles alone; a block a row, and the words in the block "content"."""

    endpoints = ("LyricsFreak",)
    search_path = "/search.php"

    def search_page(self, request):
        wanted = request.query.get("q", "")
        rows = [self.row("Somebody Else", html.escape(wanted), '<a href="/other.html" class="song">same title</a>')]
        for address, artist, title in self.found(wanted):
            # The first row of a song has its link outside its own block, as a teaser; the second is the real one.
            rows.append(self.row(artist, title, "") + '<a href="/teaser.html" class="song">teaser</a>')
            rows.append(self.row(artist, title, f'<div class="name"><a href="{address}" title="x" class="song">{title}</a></div>'))
        rows.append(self.row("Nobody At All", "Quite Another Song", '<a href="/none.html" class="song">another</a>'))
        return page(f"Search: {wanted}", '<div class="results">\n' + "\n".join(rows) + "\n</div>")

    @staticmethod
    def row(artist, title, link):
        names = f'data-sorting-artist="{artist}" data-sorting-song="{title}"'
        return f'<div class="list-row" {names}>\n  <div class="stars"><span>4.2</span></div>{link}\n</div>'

    def song_page(self, _number, names, words):
        return self.page_with(names, with_breaks(words))

    @staticmethod
    def page_with(names, markup):
        artist, title = map(html.escape, names)
        content = (f'<h1>{title} by {artist}</h1>\n<div class="share"><a href="/share">Share</a></div>\n'
                   f'<div class="lyrics" id="content" data-id="7">\n<!-- begin --><p>{markup}</p>\n</div>\n'
                   '<div id="related"><a href="/song/0.html" class="song">More</a></div>')
        return page(f"{names[1]} - {names[0]}", content)


class GeniusSite(Site):
    """A search service that answers in JSON. Songs with an even number have a page in the older layout."""

    endpoints = ("Genius",)
    search_path = "/api/search/multi"
    song_path = "/song-{}-lyrics"

    def search_page(self, request):
        hits = [self.hit(html.unescape(artist), html.unescape(title), address)
                for address, artist, title in self.found(request.query.get("q", ""))]
        decoy = self.hit("Somebody Else", request.query.get("q", ""), "/decoy")
        sections = [{"type": "top_hit", "hits": [decoy, *hits[:1]]}, {"type": "artist", "hits": [decoy]},
                    {"type": "song", "hits": [decoy, *hits]}]
        answer = {"meta": {"status": 200}, "response": {"sections": sections}}
        return Answer(json.dumps(answer).encode(), headers={"Content-Type": "application/json"})

    @staticmethod
    def hit(artist, title, path):
        result = {"_type": "song", "path": path, "title": title, "primary_artist": {"_type": "artist", "name": artist}}
        return {"type": "song", "highlights": [], "result": result}

    def song_page(self, number, names, words):
        newer = ('<div id="application"><div class="Lyrics__Root-x"><div data-lyrics-container="true" '
                 'class="Lyrics__Container-x-1"><div class="LyricsHeader-x"><h2>Lyrics</h2></div>{}</div>'
                 '<div class="Lyrics__Footer">12Embed</div></div></div>')
        older = '<div class="lyrics">\n<!--sse-->\n<p>{}</p>\n<!--/sse--></div>'
        layout, tag = (older, "<br>\n") if number % 2 == 0 else (newer, "<br/>")
        return page(f"{names[0]} – {names[1]} Lyrics", layout.format(with_breaks(words, tag)))


class MegalyricsSite(Site):
    """A table of songs. Songs with an even number have a page in the older layout."""

    endpoints = ("Megalyrics",)

    def search_page(self, request):
        rows = [("/other", "Другие", "Другая песня"), *self.found(request.query.get("search", ""))]
        cells = "\n".join(f'<tr>\n<td>{number}</td><td><a class="song" href="{address}">{title}&nbsp;&middot;</a></td>\n'
                          f'<td><a href="/a">{artist}</a></td><td>3:41</td><td><i></i></td>\n</tr>'
                          for number, (address, artist, title) in enumerate(rows, 1))
        return page("Поиск", '<div id="r" class="songs-table"><h2>Песни</h2>\n<table>\n<thead><tr><th>1</th></tr></thead>'
                    f"\n<tbody>\n{cells}\n</tbody></table></div>")

    def song_page(self, number, names, words):
        advert = '<div id="native_roll"><script>roll();</script></div>'
        if number % 2 == 0:
            content = f'{advert}<div class="text_inner" data-id="1">{with_breaks(words, "<br>")}</div>'
        else:
            # The blocks come to stand on lines of their own; each but the first begins with an empty one.
            parts = "".join(f'<div class="part"><div class="text">{html.escape(part)}</div></div>{advert}'
                            for part in words.replace("\n\n", "\n\n\n").split("\n\n"))
            content = f'<div id="song_text" lang="ru">{parts}</div><div class="switch-block">Перевод</div>'
        return page(" - ".join(names), content)


class AZLyricsSite(Site):
    """A search that wants a parameter from a script, and the words in the first block without a name."""

    endpoints = ("AZLyrics", "AZLyricsSearch")
    search_path = "/search.php"
    parameter = ("x", "7f3a90c2")

    def answer(self, request):
        if request.path == "/geo.js":
            script = 'field.setAttribute("name", "{}");\nfield.setAttribute("value", "{}");'
            return Answer(script.format(*self.parameter).encode(), headers={"Content-Type": "text/javascript"})
        return super().answer(request)

    def search_page(self, request):
        name, value = self.parameter
        if request.query.get(name) != value:
            return Answer(status=403)
        rows = [("/other.html", "Somebody Else", "Another Song"), *self.found(request.query.get("q", ""))]
        cells = "\n".join(f'<tr>\n<td class="text-left">{number}. <a href="http://{request.headers["Host"]}{address}">'
                          f"<b>{title}</b></a> - <b>{artist}</b><br>...</td></tr>"
                          for number, (address, artist, title) in enumerate(rows, 1))
        return page("Search", f'<div class="panel">Song results</div>\n<table class="table">\n{cells}\n</table>')

    def song_page(self, _number, names, words):
        content = (f'<div class="lyricsh"><b>{html.escape(names[0])}</b></div>\n<br>\n<div>\n<!-- Shown under an agreement. -->'
                   f"\n{with_breaks(words)}\n</div>\n<br><div>Submit corrections</div>")
        return page(" - ".join(names), content)


class DarkLyricsSite(Site):
    """One page with all songs, each under its anchor. It wants the cookie that its own pages compute."""

    endpoints = ("DarkLyrics",)
    song_path = "/lyrics/all.html#{}"

    def answer(self, request):
        if "lastvisitts=" not in request.headers.get("Cookie", ""):
            return Answer(status=403)
        return self.album_page() if request.path == "/lyrics/all.html" else super().answer(request)

    def search_page(self, request):
        links = "\n".join(f'<div class="sen"><h2><a href="{address[1:]}" target="_blank">{artist} - {title}</a></h2></div>'
                          for address, artist, title in self.found(request.query.get("q", "")))
        return self.wrapped(f'<h3 class="seah">Artists:</h3>\n<h2><a href="a.html" target="_blank">x</a></h2>'
                            f'<h3 class="seah">Songs:</h3>\n{links}')

    def album_page(self):
        songs = "\n".join(f'<h3><a name="{number}">{number}. {html.escape(names[1])}</a></h3><br />\n'
                          f'{with_breaks(words, "<br />")}<br /><br />' for number, (names, words) in enumerate(self.songs))
        return self.wrapped(f'<div class="lyrics">\n{songs}\n<h3><a name="end">Notes</a></h3></div>')

    @staticmethod
    def wrapped(content):
        return page("Lyrics", f'<div id="main"><div class="cntwrap">\n<div class="cont">{content}</div></div></div>')


class MusixMatchSite(Site):
    """A list of tracks, and the words in one block, each part in a span of its own."""

    endpoints = ("MusixMatch",)
    search_path = "/search/.*/tracks"

    def search_page(self, request):
        tracks = [("/other.html", "Somebody Else", "Another Song"), *self.found(request.path)]
        items = "\n".join(f'<li class="showArtist"><h2><a class="title" href="{address}"><span>{title}</span></a></h2>'
                          f'<h3><a class="artist" href="/a">{artist}</a></h3></li>' for address, artist, title in tracks)
        return page("Search", f'<div class="box"><ul class="tracks list thumb-list">\n{items}\n</ul></div>')

    def song_page(self, _number, names, words):
        first, *rest = html.escape(words).splitlines(keepends=True)
        spans = "".join(f'<p class="x"><span class="lyrics__content__ok">{part}</span></p><div class="ad"><script>a()</script></div>'
                        for part in (first, "".join(rest)))
        return page(" - ".join(names), f'<div class="col"><div class="mxm-lyrics"><h2>Words</h2>{spans}</div></div>')


class LastfmService:
    """Knows better names: a dict of (artist, title) -> list of such pairs, of which the first is the correction."""

    endpoints = ("Lastfm",)
    correction = ('<corrections><correction index="0"><track><name>{1}</name><artist><name>{0}</name></artist></track>'
                  "</correction></corrections>")

    def __init__(self, names):
        self.names = names

    def answer(self, request):
        asked = request.query.get("artist"), request.query.get("track")
        pairs = [tuple(map(html.escape, pair)) for pair in self.names.get(asked, ())]
        if request.query.get("method") == "track.search":
            tracks = "".join(f"<track><name>{title}</name><artist>{artist}</artist></track>" for artist, title in pairs[1:3])
            content = f'<results for="x"><trackmatches>{tracks}</trackmatches></results>'
        else:
            content = "".join(self.correction.format(*pair) for pair in pairs[:1]) or "<corrections/>"
        return Answer(f'<?xml version="1.0" encoding="utf-8"?>\n<lfm status="ok">{content}</lfm>'.encode(),
                      headers={"Content-Type": "text/xml"})


LYRICS_SITES = (LyricsFreakSite, GeniusSite, MegalyricsSite, AZLyricsSite, DarkLyricsSite, MusixMatchSite)
