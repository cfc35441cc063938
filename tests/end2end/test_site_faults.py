#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""A site that redirects, fails, cuts, floods, drips and lies: nothing of that may end in a tag, or end the program."""
import gzip
import socket
import threading
import time
import unittest
import urllib.parse
import zlib

import rig
from server import Answer

SENTINEL = "Willow Fence"
# Far above what the program needs, far below what inflating the bomb would take.
MEMORY_LIMIT_KB = 900_000
BOMB_BYTES = 2_000_000_000
MEBIBYTE = 1 << 20


def free_port():
    """A port on which nobody listens."""
    with socket.socket() as probe:
        probe.bind(("127.0.0.1", 0))
        return probe.getsockname()[1]


def redirect(status, location):
    return lambda site, request: Answer(b"<html>moved</html>", status, {"Location": location})


def move_on(status):
    """Redirects once, to a page that has the lyrics."""
    return lambda site, request: Answer(b"", status, {"Location": "/moved" + request.path})


def loop(site, request):
    return Answer(b"", 307, {"Location": request.path + "?" + urllib.parse.urlencode(request.query)})


def status(number):
    """An error status on a page that has the lyrics all the same."""
    return lambda site, request: Answer(site.good_page(request).body, number)


def padded(site, request):
    """The lyrics, and a mebibyte of blank space behind them."""
    return Answer(site.good_page(request).body + b" " * MEBIBYTE)


def bomb(site, request):
    return Answer(site.bomb, headers={"Content-Encoding": "gzip"})


def bad_gzip(site, request):
    return Answer(b"\x1f\x8b\x08\x00 this is no gzip" * 20, headers={"Content-Encoding": "gzip"})


def zipped(site, request):
    return Answer(gzip.compress(site.good_page(request).body), headers={"Content-Encoding": "gzip"})


def cut(site, request):
    """The whole page, when its length was said to be greater."""
    body = site.good_page(request).body

    def send(handler):
        handler.send_response(200)
        handler.send_header("Content-Length", str(len(body) + 1000))
        handler.end_headers()
        handler.wfile.write(body)
    return send


def drip(seconds, end):
    """The page in small pieces over that time; then all of it ("whole"), or a closed connection ("cut")."""
    def answer(site, request):
        body = site.good_page(request).body

        def send(handler):
            handler.send_response(200)
            handler.send_header("Content-Length", str(len(body)))
            handler.end_headers()
            for position in range(0, len(body), len(body) // 20):
                handler.wfile.write(body[position:position + len(body) // 20])
                time.sleep(seconds / 20)
                if end == "cut" and position > len(body) // 2:
                    return
        return send
    return answer


def drip_for_ever(site, request):
    """Valid headers and then a byte every half second, until the program hangs up or the suite ends."""
    def send(handler):
        handler.send_response(200)
        handler.end_headers()
        while not site.over.wait(0.5):
            handler.wfile.write(b" ")
    return send


def no_answer(site, request):
    def send(handler):
        pass
    return send


def garbage(site, request):
    return lambda handler: handler.wfile.write(b"\x00\xffSSH-2.0-none\r\n\r\n" * 50)


def replaced(old, new):
    """The page with its lyrics, where these bytes stand in place of others."""
    return lambda site, request: Answer(site.good_page(request).body.replace(old, new))


BINARY = bytes(range(128, 256)) * 40
REFUSED = f"http://127.0.0.1:{free_port()}/"

# What was asked for ("search" or "song" page), a sentence, the fault, and whether the lyrics come all the same.
ROWS = [
    ("song", "301 to a page with the lyrics", move_on(301), True),
    ("song", "302, which is not followed", move_on(302), False),
    ("song", "307 to itself for ever", loop, False),
    ("search", "307 to itself for ever, at the search", loop, False),
    ("song", "307 without an address", lambda site, request: Answer(b"", 307), False),
    ("song", "301 to a file", redirect(301, "file:///etc/passwd"), False),
    ("search", "301 to a file, at the search", redirect(301, "file:///etc/passwd"), False),
    ("song", "301 to a data address", redirect(301, "data:text/html,<div id='content'>x</div>"), False),
    ("song", "301 to a port that refuses", redirect(301, REFUSED), False),
    ("song", "404 on a page with the lyrics", status(404), False),
    ("song", "500 on a page with the lyrics", status(500), False),
    ("search", "500 at the search", status(500), False),
    ("song", "a body that is cut", cut, False),
    ("song", "a page of more than a mebibyte", padded, False),
    ("search", "a search page of more than a mebibyte", padded, False),
    ("song", "a gzip bomb", bomb, False),
    ("song", "gzip that is none", bad_gzip, False),
    ("song", "gzip as it should be", zipped, True),
    ("song", "a page that drips but comes", drip(5, "whole"), True),
    ("song", "a page that drips and is cut", drip(5, "cut"), False),
    ("song", "a page that drips for ever", drip_for_ever, False),
    ("song", "a connection closed without an answer", no_answer, False),
    ("song", "an answer that is no HTTP", garbage, False),
    ("song", "a NUL before the lyrics", replaced(b'<div class="lyrics"', b'\0<div class="lyrics"'), False),
    ("song", "a page of bytes that are no UTF-8", lambda site, request: Answer(BINARY), False),
    ("song", "an empty page", lambda site, request: Answer(b""), False),
    ("song", "lyrics that are a script", replaced(b"<p>", b"&lt;script>alert(1)&lt;/script><p>"), False),
]
TITLES = [f"Song of {first} {second}" for first in ("Amber", "Birch", "Copper", "Drift", "Ember", "Fern")
          for second in ("Gates", "Roads", "Rains", "Hills", "Lanes")][:len(ROWS)]


class FaultySite(rig.LyricsFreakSite):
    """Answers every song with the fault of its row."""

    def __init__(self, lyrics):
        super().__init__(lyrics)
        self.over = threading.Event()
        self.bomb = bomb_of(BOMB_BYTES)
        self.faults = {title: (kind, fault) for title, (kind, _, fault, _) in zip(TITLES, ROWS)}

    def good_page(self, request):
        return super().answer(request)

    def title_of(self, request):
        if "q" in request.query:
            return "search", request.query["q"]
        number = request.path.removeprefix("/song/").removesuffix(".html")
        return "song", self.songs[int(number)][0][1] if number.isdigit() else ""

    def answer(self, request):
        if request.path.startswith("/moved"):
            request.path = request.path.removeprefix("/moved")
            return self.good_page(request)
        kind, title = self.title_of(request)
        faulty_kind, fault = self.faults.get(title, (None, None))
        return fault(self, request) if kind == faulty_kind else self.good_page(request)


def bomb_of(size):
    """A gzip stream that inflates to that many zero bytes: one packed block, again and again."""
    packer = zlib.compressobj(9, zlib.DEFLATED, 31)
    header = packer.compress(b"") + packer.flush(zlib.Z_FULL_FLUSH)
    block = packer.compress(bytes(MEBIBYTE)) + packer.flush(zlib.Z_FULL_FLUSH)
    return header + block * (size // MEBIBYTE)


def peak_memory_kb(process):
    with open(f"/proc/{process.pid}/status", encoding="ascii") as file:
        return next(int(line.split()[1]) for line in file if line.startswith("VmHWM"))


class SiteFaultsTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.session = cls.enterClassContext(rig.Session({title: rig.words_for(title) for title in [*TITLES, SENTINEL]}, FaultySite))
        cls.addClassCleanup(cls.session.site.over.set)
        songs = rig.Songs(cls.session.music)
        cls.paths = [songs.make(f"{number:02}.mp3", {"artist": rig.ARTIST, "title": title}) for number, title in enumerate(TITLES)]
        cls.sentinel = songs.make("last.mp3", {"artist": rig.ARTIST, "title": SENTINEL})
        cls.before = {path: rig.digest(path) for path in cls.paths}
        program = cls.session.start([*cls.paths, cls.sentinel])
        good = [path for path, row in zip(cls.paths, ROWS) if row[3]]
        cls.missing = cls.session.wait_for_lyrics(program, [*good, cls.sentinel])
        # Only what drips for ever may still be under way when the last song has its lyrics.
        cls.settled = rig.wait_until(lambda: cls.session.sites.open_requests() <= 1, 30)
        cls.lived = program.poll() is None
        cls.memory = peak_memory_kb(program) if cls.lived else 0
        cls.status = rig.end(program, 30) if cls.lived else program.returncode

    def test_the_program_lived_and_ended_in_order(self):
        self.assertTrue(self.lived, f"it ended by itself with {self.status}" + self.session.messages())
        self.assertEqual(self.status, 0, self.session.messages())

    def test_nothing_hangs(self):
        self.assertEqual(self.missing, [], self.session.messages())
        self.assertTrue(self.settled, "requests are still under way" + self.session.messages())

    def test_every_song_was_asked_for(self):
        self.assertEqual(set(self.session.asked_titles()), {*TITLES, SENTINEL})

    def test_only_good_pages_end_in_tags(self):
        for (_, sentence, _, good), title, path in zip(ROWS, TITLES, self.paths):
            with self.subTest(sentence):
                if good:
                    found = rig.tags.lyrics_of(path)
                    self.assertEqual(found and found.replace("\r\n", "\n"), rig.words_for(title))
                else:
                    self.assertIsNone(rig.tags.lyrics_of(path))
                    self.assertEqual(rig.digest(path), self.before[path], "the file was written")

    def test_memory_stays_bounded(self):
        self.assertGreater(self.memory, 0)
        self.assertLess(self.memory, MEMORY_LIMIT_KB)


if __name__ == "__main__":
    unittest.main()
