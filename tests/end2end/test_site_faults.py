#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""A site that cuts, floods, drips and lies: nothing of that may end in a tag, or end the program."""
import threading
import unittest
import zlib

import rig
from server import Answer

# Far above what the program needs, far below what inflating the bomb would take.
MEMORY_LIMIT_KB = 900_000
BOMB_BYTES = 2_000_000_000
MEBIBYTE = 1 << 20


def cut(page):
    """The whole page, when its length was said to be greater."""
    def send(handler):
        handler.send_response(200)
        handler.send_header("Content-Length", str(len(page) + 1000))
        handler.end_headers()
        handler.wfile.write(page)
    return send


def bomb(_page):
    """A gzip stream that inflates to that many zero bytes: one packed block, again and again."""
    packer = zlib.compressobj(9, zlib.DEFLATED, 31)
    header = packer.compress(b"") + packer.flush(zlib.Z_FULL_FLUSH)
    block = packer.compress(bytes(MEBIBYTE)) + packer.flush(zlib.Z_FULL_FLUSH)
    return Answer(header + block * (BOMB_BYTES // MEBIBYTE), headers={"Content-Encoding": "gzip"})


class FaultySite(rig.LyricsFreakSite):
    """Delivers each song's page in the way that its title says."""

    def __init__(self, lyrics):
        super().__init__(lyrics)
        self.over = threading.Event()
        self.faults = {
            "Moved": lambda page: Answer(b"", 301, {"Location": "/moved"}),
            "Cut": cut,
            "Padded": lambda page: Answer(page + b" " * MEBIBYTE),
            "Bomb": bomb,
            "Drip": self.drip_for_ever,
            "Script": lambda page: Answer(page.replace(b"<p>", b"&lt;script>alert(1)&lt;/script><p>")),
            "Sound": Answer,
        }

    def drip_for_ever(self, _page):
        """Valid headers and then a byte every half second, until the program hangs up or the suite ends."""
        def send(handler):
            handler.send_response(200)
            handler.end_headers()
            while not self.over.wait(0.5):
                handler.wfile.write(b" ")
        return send

    def answer(self, request):
        if request.path == "/moved":
            return super().song_page(0, *self.songs[0])
        return super().answer(request)

    def song_page(self, number, names, words):
        return self.faults[names[1]](super().song_page(number, names, words).body)


class SiteFaultsTest(unittest.TestCase):
    def test_only_sound_pages_end_in_tags_and_the_program_lives_on(self):
        titles = ["Moved", "Cut", "Padded", "Bomb", "Drip", "Script", "Sound"]
        session = self.enterContext(rig.Session({title: rig.words_for(title) for title in titles}, FaultySite))
        self.addCleanup(session.site.over.set)
        songs = rig.Songs(session.music)
        paths = {title: songs.make(f"{title}.mp3", {"artist": rig.ARTIST, "title": title}) for title in titles}
        before = {title: rig.digest(path) for title, path in paths.items()}
        program = session.start(paths.values())
        sound = ["Moved", "Sound"]
        self.assertEqual(session.wait_for_lyrics(program, [paths[title] for title in sound]), [], session.messages())
        # Only what drips for ever may still be under way.
        self.assertTrue(rig.wait_until(lambda: session.sites.open_requests() <= 1, 60), session.messages())
        with open(f"/proc/{program.pid}/status", encoding="ascii") as status:
            peak = next(int(line.split()[1]) for line in status if line.startswith("VmHWM"))
        self.assertLess(peak, MEMORY_LIMIT_KB)
        self.assertEqual(rig.end(program, 30), 0, session.messages())
        self.assertEqual(set(session.asked_titles()), set(titles))
        for title, path in paths.items():
            with self.subTest(title):
                if title in sound:
                    self.assertEqual(rig.tags.lyrics_of(path).replace("\r\n", "\n"), rig.words_for(title))
                else:
                    self.assertEqual(rig.digest(path), before[title], "the file was written")


if __name__ == "__main__":
    unittest.main()
