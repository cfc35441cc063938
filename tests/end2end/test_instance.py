#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""One program at a time, and every way to end it."""
import configparser
import pathlib
import shutil
import signal
import threading
import unittest

import rig

STARTED_SECONDS = 30


class PatientSite(rig.LyricsFreakSite):
    """Holds every page with lyrics back until `released` is set."""

    def __init__(self, lyrics):
        super().__init__(lyrics)
        self.released = threading.Event()
        self.held = 0

    def song_page(self, number, names, words):
        self.held += 1
        self.released.wait(rig.TIME_LIMIT_SECONDS)
        return super().song_page(number, names, words)


class InstanceTest(unittest.TestCase):
    def session(self, *titles, released=False):
        """A session, and a song of each title."""
        session = self.enterContext(rig.Session({title: rig.words_for(title) for title in titles}, PatientSite))
        if released:
            session.site.released.set()
        songs = rig.Songs(session.music)
        return session, [songs.make(f"{title}.mp3", {"artist": rig.ARTIST, "title": title}) for title in titles]

    def start_searching(self, title, **settings):
        """A session whose program waits for the page with the song's lyrics; the song; and the program."""
        session, (path,) = self.session(title)
        program = session.start([path], settings=settings)
        self.wait_until(lambda: session.site.held == 1, "the song was never asked for", session)
        return session, path, program

    def wait_until(self, condition, what, session):
        """Fails with that text when the condition does not hold in time, or the program is gone before it does."""
        def gone():
            return all(process.poll() is not None for process in session.stage.running)
        rig.wait_until(lambda: condition() or gone(), STARTED_SECONDS)
        self.assertTrue(condition(), what + session.messages())

    def assert_finds_lyrics_and_ends(self, session, program, paths):
        self.assertEqual(session.wait_for_lyrics(program, paths), [], session.messages())
        self.assertEqual(rig.end(program), 0, session.messages())

    def test_a_second_start_ends_with_1_and_the_first_goes_on(self):
        session, path, first = self.start_searching("Amber Gate")
        asked = len(session.sites.requests())
        self.assertEqual(session.start().wait(STARTED_SECONDS), 1, session.messages())
        self.assertEqual(len(session.sites.requests()), asked, "the second program asked a site")
        session.site.released.set()
        self.assert_finds_lyrics_and_ends(session, first, [path])

    def test_a_lock_left_by_a_killed_program_does_not_block(self):
        session, path, first = self.start_searching("Birch Road")
        left = {path.name for path in session.stage.settings_path.parent.iterdir()}
        self.assertGreater(len(left - {session.stage.settings_path.name}), 0, "no lock file lies beside the settings")
        first.kill()
        first.wait()
        session.site.released.set()
        self.assert_finds_lyrics_and_ends(session, session.start(), [path])

    def test_writes_that_wait_are_done_before_it_ends(self):
        # As many songs as one host gets connections, so that all answers arrive at once; large ones, so that each write
        # has to move all of the sound.
        session, paths = self.session("Copper Rain", "Drift Wood", "Ember Hill", "Fern Lane", "Granite Sky", "Hazel Moon")
        for path in paths:
            enlarge(path, 40_000_000)
        sizes = {path: path.stat().st_size for path in paths}
        program = session.start(paths)
        self.wait_until(lambda: session.site.held == len(paths), "not all songs were asked for", session)
        session.site.released.set()
        self.wait_until(lambda: any(path.stat().st_size != sizes[path] for path in paths) or has_part(session.music),
                        "no song was written", session)
        self.assertEqual(rig.end(program), 0, session.messages())
        self.assertEqual([path.name for path in paths if not rig.has_lyrics(path)], [])
        self.assertEqual(set(session.music.iterdir()), set(paths))

    def test_lyrics_that_are_in_no_song_when_it_ends_are_kept_as_text(self):
        session, path, program = self.start_searching("Maple Door", generateLyricsFileAuto="true")
        path.unlink()
        session.site.released.set()
        self.wait_until(path.with_suffix(".txt").exists, "the export before the write was never made", session)
        self.assertEqual(rig.end(program), 0, session.messages())
        kept = list((session.stage.home / "xdg_data_home").rglob("unsaved/*"))
        self.assertEqual([text.name for text in kept], ["Maple Door.mp3.txt"])
        self.assertEqual(kept[0].read_text("utf-8"), f"{path}\n\n{rig.words_for('Maple Door')}\n")

    def test_it_ends_in_order_while_a_site_keeps_it_waiting(self):
        for number in (signal.SIGTERM, signal.SIGHUP):
            with self.subTest(number.name):
                session, path, program = self.start_searching("Iron Lake")
                before = rig.digest(path)
                program.send_signal(number)
                self.assertEqual(program.wait(20), 0, session.messages())
                self.assertNotIn("qrc:/qml/", session.messages(), "the scene outlives what it shows")
                self.assertEqual(rig.digest(path), before)

    def test_a_scene_that_cannot_be_loaded_ends_with_3_and_nothing_goes_on_behind_its_box(self):
        session, paths = self.session("Lantern Street")
        folder = session.stage.home / "without modules"
        folder.mkdir()
        session.stage.program = pathlib.Path(shutil.copy2(session.stage.program, folder))
        (folder / "qt.conf").write_text("[Paths]\nQml2Imports = nowhere\n", encoding="utf-8")
        plugins = next(pathlib.Path("/usr/lib").glob("*/qt5/plugins"))
        self.assert_ends_with_3(session, session.start(paths, QT_PLUGIN_PATH=str(plugins)), "qml-module-qtquick2")

    def test_neither_does_anything_go_on_when_the_list_cannot_be_made_after_the_first_frame(self):
        session, paths = self.session("Lantern Street")
        broken = session.stage.home / "QtQuick" / "Controls"
        broken.mkdir(parents=True)
        (broken / "qmldir").write_text("module QtQuick.Controls\nplugin nowhere\n", encoding="utf-8")
        self.assert_ends_with_3(session, session.start(paths, QML2_IMPORT_PATH=str(session.stage.home)), '"nowhere" not found')

    def assert_ends_with_3(self, session, program, message):
        self.wait_until(lambda: message in session.messages(), "nobody said what is missing", session)
        self.assertEqual(rig.end(program), 3, session.messages())
        self.assertEqual(session.sites.requests(), [])

    def test_the_list_comes_back_at_the_next_start(self):
        session, paths = self.session("Juniper Wall", "Kestrel Field", released=True)
        first = session.start(paths, settings={"listWidth": "333", "lyricsFontSize": "17"})
        self.assert_finds_lyrics_and_ends(session, first, paths)
        kept = stored(session)
        self.assertEqual((kept["listWidth"], kept["lyricsFontSize"]), ("333", "17"))
        late = rig.Songs(session.music).make(paths[0].name, {"artist": rig.ARTIST, "title": "Juniper Wall"})
        self.assert_finds_lyrics_and_ends(session, session.start(), [late])
        # Without a window manager the place on the screen is not kept to the pixel.
        again = stored(session)
        self.assertTrue(kept.pop("geometry") and again.pop("geometry"))
        self.assertEqual(again, kept)

    def test_a_folder_that_is_named_at_the_start_is_added(self):
        session, paths = self.session("Nettle Field", released=True)
        program = session.start([], "/bin/sh", "-c", f"exec \"$0\" '{session.music}'")
        self.assert_finds_lyrics_and_ends(session, program, paths)

    def test_the_scene_is_drawn_with_what_the_environment_says(self):
        rows = [("a device of the user's is kept", {"QMLSCENE_DEVICE": "no-such-device"}, "no-such-device"),
                ("without one it is drawn in software", {}, "software")]
        for sentence, environment, expected in rows:
            with self.subTest(sentence):
                session, _ = self.session()
                session.start([], QSG_INFO="1", QT_LOGGING_RULES="qt.scenegraph.*=true", **environment)
                self.wait_until(lambda: expected in session.messages(200), f"Qt never spoke of {expected}", session)


def stored(session):
    """What the program has stored, but for the groups."""
    settings = configparser.ConfigParser(interpolation=None, delimiters="=")
    settings.optionxform = str
    settings.read(session.stage.settings_path, encoding="ascii")
    return dict(settings["General"])


def has_part(folder):
    return any(path.suffix != ".mp3" for path in pathlib.Path(folder).iterdir())


def enlarge(path, size):
    """Repeats the sound of an MP3 behind itself until the file has about that many bytes."""
    sound = rig.Songs(path.parent).sound(".mp3").read_bytes()
    with path.open("ab") as file:
        file.write(sound * (size // len(sound)))


if __name__ == "__main__":
    unittest.main()
