# SPDX-License-Identifier: MIT
"""Runs lyrics sites on 127.0.0.1, one server for each.

A site is an object with `endpoints`, the names of its base addresses in the settings group "endpoints", and a method
`answer` for requests.
"""
import dataclasses
import http.server
import threading
import time
import urllib.parse


@dataclasses.dataclass
class Request:
    """What was asked: the site's first endpoint, the path, the query (name -> text), the headers, and when."""

    site: str
    path: str
    query: dict
    headers: dict
    at: float = dataclasses.field(default_factory=time.monotonic)


@dataclasses.dataclass
class Answer:
    """What is answered. A status other than 200, headers and a raw body are for unusual pages."""

    body: bytes = b""
    status: int = 200
    headers: dict = dataclasses.field(default_factory=dict)


class QuietSite:
    """Stands for every site that a stage has none of its own for: it knows no song and no better name."""

    endpoints = ("",)

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
        request = Request(self.server.site.endpoints[0], urllib.parse.unquote(parts.path), dict(urllib.parse.parse_qsl(parts.query)), dict(self.headers))
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

    do_HEAD = do_GET

    def send(self, answer):
        self.send_response(answer.status)
        for name, value in {"Content-Type": "text/html; charset=utf-8", **answer.headers}.items():
            self.send_header(name, value)
        self.send_header("Content-Length", str(len(answer.body)))
        self.end_headers()
        if self.command != "HEAD":
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
        servers.update((endpoint, server) for server in self.servers for endpoint in server.site.endpoints)
        return {endpoint: f"http://127.0.0.1:{server.server_address[1]}" for endpoint, server in servers.items()}

    def requests(self):
        """All requests so far, in their order."""
        return sorted((request for server in self.servers for request in list(server.requests)), key=lambda request: request.at)

    def open_requests(self):
        return sum(server.open_requests for server in self.servers)
