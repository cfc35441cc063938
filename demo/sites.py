# SPDX-License-Identifier: MIT
"""Lyrics sites on 127.0.0.1, with pages of the shape that the program's site clients read.

A site is a class with the name of its base address in the settings group "endpoints" and a method that answers a
request; `Sites` runs one server for each.
"""
import dataclasses
import html
import http.server
import threading
import urllib.parse

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


@dataclasses.dataclass
class Request:
    """What was asked: the path, the query (name -> text) and the headers."""

    path: str
    query: dict
    headers: dict


@dataclasses.dataclass
class Answer:
    """What is answered. A status other than 200, headers and a raw body are for unusual pages."""

    body: bytes = b""
    status: int = 200
    headers: dict = dataclasses.field(default_factory=dict)


def page(title, content):
    return Answer((FURNITURE.format(title=html.escape(title)) + content + FOOTER).encode())


NOT_FOUND = Answer(b"<html><body>Not found</body></html>", 404)


class LyricsFreakSite:
    """A song search by title, and one page a song."""

    endpoint = "LyricsFreak"

    def __init__(self, lyrics):
        """lyrics: (artist, title) -> words."""
        self.songs = list(lyrics.items())

    def answer(self, request):
        if request.path == "/search.php":
            return self.search_page(request.query.get("q", ""))
        number = request.path.removeprefix("/song/").removesuffix(".html")
        if number.isdigit() and int(number) < len(self.songs):
            return self.lyrics_page(*self.songs[int(number)])
        return NOT_FOUND

    def search_page(self, wanted):
        found = [(number, names) for number, (names, _) in enumerate(self.songs) if wanted.lower() in names[1].lower()]
        rows = [self.row("Somebody Else", wanted, '<a href="/other.html" class="song">same title</a>')]
        for number, (artist, title) in found:
            # The first row of a song has its link outside its own block, as a teaser; the second is the real one.
            rows.append(self.row(artist, title, "") + '<a href="/teaser.html" class="song">teaser</a>')
            rows.append(self.row(artist, title, f'<div class="name"><a href="/song/{number}.html" title="x" class="song">{html.escape(title)}</a></div>'))
        rows.append(self.row("Nobody At All", "Quite Another Song", '<a href="/none.html" class="song">another</a>'))
        return page(f"Search: {wanted}", '<div class="results">\n' + "\n".join(rows) + "\n</div>")

    @staticmethod
    def row(artist, title, link):
        names = f'data-sorting-artist="{html.escape(artist)}" data-sorting-song="{html.escape(title)}"'
        return f'<div class="list-row" {names}>\n  <div class="stars"><span>4.2</span></div>{link}\n</div>'

    def lyrics_page(self, names, words):
        return self.page_with(names, self.markup(words))

    @staticmethod
    def markup(words):
        return html.escape(words).replace("\n", "<br>\n")

    @staticmethod
    def page_with(names, markup):
        artist, title = map(html.escape, names)
        content = (f'<h1>{title} by {artist}</h1>\n<div class="share"><a href="/share">Share</a></div>\n'
                   f'<div class="lyrics" id="content" data-id="7">\n<!-- begin --><p>{markup}</p>\n</div>\n'
                   '<div id="related"><a href="/song/0.html" class="song">More</a></div>')
        return page(f"{names[1]} - {names[0]}", content)


class QuietSite:
    """Stands for every site that a stage has none of its own for: it knows no song and no better name."""

    def answer(self, _request):
        return Answer()


# Every address that the program asks during a search.
SEARCH_ENDPOINTS = ("LyricsFreak", "Genius", "Megalyrics", "AZLyrics", "AZLyricsSearch", "DarkLyrics", "MusixMatch", "Lastfm")


class Server(http.server.ThreadingHTTPServer):
    daemon_threads = True
    block_on_close = False

    def __init__(self, site):
        super().__init__(("127.0.0.1", 0), Handler)
        self.site = site
        self.lock = threading.Lock()
        self.requests = []
        self.open_requests = 0

    def handle_error(self, request, client_address):
        """A client that hangs up is nothing to report."""


class Handler(http.server.BaseHTTPRequestHandler):
    protocol_version = "HTTP/1.1"
    timeout = 300

    def do_GET(self):
        parts = urllib.parse.urlsplit(self.path)
        request = Request(parts.path, dict(urllib.parse.parse_qsl(parts.query)), dict(self.headers))
        with self.server.lock:
            self.server.requests.append(request)
            self.server.open_requests += 1
        try:
            answer = self.server.site.answer(request)
            if callable(answer):
                self.close_connection = True
                answer(self)
            else:
                self.send(answer)
        except OSError:
            self.close_connection = True
        finally:
            with self.server.lock:
                self.server.open_requests -= 1

    def send(self, answer):
        self.send_response(answer.status)
        for name, value in {"Content-Type": "text/html; charset=utf-8", **answer.headers}.items():
            self.send_header(name, value)
        self.send_header("Content-Length", str(len(answer.body)))
        self.end_headers()
        self.wfile.write(answer.body)

    def log_message(self, *_):
        pass


class Sites:
    """Runs one server a site while the `with` block lasts.

    A site's `answer(request)` is called in a thread of its own and gives an `Answer`, or a function that is handed
    the `Handler` and writes to its connection as it likes.
    """

    def __init__(self, *sites):
        self.servers = [Server(site) for site in sites]
        self.others = Server(QuietSite())

    def __enter__(self):
        for server in (*self.servers, self.others):
            threading.Thread(target=server.serve_forever, kwargs={"poll_interval": 0.05}, daemon=True).start()
        return self

    def __exit__(self, *_):
        for server in (*self.servers, self.others):
            server.shutdown()
            server.server_close()

    def endpoints(self):
        """Key of the settings group "endpoints" -> base address, so that no other host is asked for a song."""
        servers = dict.fromkeys(SEARCH_ENDPOINTS, self.others)
        servers.update((server.site.endpoint, server) for server in self.servers)
        return {endpoint: f"http://127.0.0.1:{server.server_address[1]}" for endpoint, server in servers.items()}

    def requests(self):
        return [request for server in self.servers for request in list(server.requests)]

    def open_requests(self):
        return sum(server.open_requests for server in self.servers)
