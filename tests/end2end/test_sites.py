#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""All lyrics sites and the name service: who is asked, in which order, and whose words end in the tag."""
import unittest

import rig
import sites
from server import Answer

NAMES = [site.endpoints[0] for site in sites.LYRICS_SITES]
# The last in the default order.
LAST = sites.LYRICS_SITES[-1]
TAKEDOWN = "gracenote_takedown of these lyrics"


def words_of(site, title):
    return f"{rig.words_for(title)}\nas {site} has it"


def make_site(kind, titles, **special):
    """A site with these titles; `special`: title -> words that are not the usual ones."""
    return kind({(rig.ARTIST, title): special.get(title) or words_of(kind.endpoints[0], title) for title in titles})


class BusySite(sites.AZLyricsSite):
    """Wants a pause of ten minutes, whatever it is asked."""

    def answer(self, request):
        return Answer(status=429, headers={"Retry-After": "600"})


class SitesTest(unittest.TestCase):
    def session(self, known, names=None):
        """Sites from name -> the titles it knows, or a site that is ready made; and the name service."""
        made = [known[kind.endpoints[0]] if isinstance(known.get(kind.endpoints[0]), sites.Site)
                else make_site(kind, known.get(kind.endpoints[0], ())) for kind in sites.LYRICS_SITES]
        first, *others = made
        return self.enterContext(rig.Session({}, lambda _: first, [*others, sites.LastfmService(names or {})]))

    def songs(self, session, *titles, artist=rig.ARTIST):
        maker = rig.Songs(session.music)
        return [maker.make(f"{title}.mp3", {"artist": artist, "title": title}) for title in titles]

    def search(self, session, paths, order, missing=()):
        """Runs the program on these songs until all but the missing ones have lyrics and nothing is asked any more."""
        program = session.start([*paths, *missing], settings={"providersOrder": f'"{";;".join(order)}"'})
        self.assertEqual(session.wait_for_lyrics(program, paths), [], session.messages())
        titles = [path.stem for path in missing]
        quiet = rig.wait_until(lambda: all(asked(session, title) for title in titles) and not session.sites.open_requests(), 60)
        self.assertTrue(quiet, session.messages())
        self.assertEqual(rig.end(program), 0, session.messages())

    def assert_words(self, path, site, title=None):
        self.assertEqual(rig.tags.lyrics_of(path).replace("\r\n", "\n"), words_of(site, title or path.stem))

    def test_each_site_alone(self):
        titles = ["Even Keel", "Odd Oar"]  # two, since some sites have pages in two layouts
        session = self.session({name: titles for name in NAMES})
        for name in NAMES:
            with self.subTest(name):
                paths = self.songs(session, *titles)
                before = len(session.sites.requests())
                self.search(session, paths, [other if other == name else f"{other}::0" for other in NAMES])
                self.assertEqual({request.site for request in session.sites.requests()[before:]}, {name})
                for path in paths:
                    self.assert_words(path, name)

    def test_the_order_is_the_users_and_what_one_has_not_the_next_is_asked_for(self):
        order = NAMES[::-1]
        known = {name: ["Everywhere", "Withdrawn"] for name in NAMES}
        known[NAMES[-1]] = make_site(LAST, known[NAMES[-1]], Withdrawn=TAKEDOWN)
        known[order[-1]] = [*known[order[-1]], "Last in Line"]
        known["Genius"] = [*known["Genius"], "Mended Names"]
        wrong = ("Nora Wale", "Mended Names")
        session = self.session(known, {wrong: [("Nobody", "Mended Names"), (rig.ARTIST, "Mended Names")]})
        paths = [*self.songs(session, "Everywhere", "Withdrawn", "Last in Line"),
                 *self.songs(session, "Mended Names", artist=wrong[0])]
        unknown, = self.songs(session, "Never Written")
        digest = rig.digest(unknown)
        self.search(session, paths, order, [unknown])
        rows = [("Everywhere", order[:1], order[0]), ("Withdrawn", order[:2], order[1]), ("Last in Line", order, order[-1]),
                ("Mended Names", [*order, "Lastfm", *order, *order[:order.index("Genius") + 1]], "Genius"),
                ("Never Written", [*order, "Lastfm"], None)]
        for title, expected, holder in rows:
            with self.subTest(title):
                self.assertEqual(asked(session, title), expected)
                if holder:
                    self.assert_words(session.music / f"{title}.mp3", holder)
        self.assertEqual(rig.digest(unknown), digest)
        log = session.messages(10000)
        for message in (f"{order[0]} has the lyrics", "AZLyrics has no such song", "DarkLyrics listed nothing"):
            self.assertIn(message, log)
        for secret in ("first line", "Last in Line", "127.0.0.1", str(session.music)):
            self.assertNotIn(secret, log)

    def test_a_site_that_asks_for_a_pause_gets_it_and_the_others_go_on(self):
        titles = [f"Song of {number}" for number in range(10, 40)]
        session = self.session({"AZLyrics": BusySite({}), "Genius": titles})
        paths = self.songs(session, *titles)
        self.search(session, paths, ["AZLyrics", "Genius"])
        for path in paths:
            self.assert_words(path, "Genius")
        # As many as are searched for at once may have been on their way.
        self.assertIn(sum(request.site == "AZLyrics" for request in session.sites.requests()), range(1, 11))

    def test_with_all_sites_disabled_only_the_second_corrected_pair_is_tried(self):
        names = {(rig.ARTIST, "Locked"): [(rig.ARTIST, "First Guess"), (rig.ARTIST, "Second Guess")]}
        session = self.session({name: ["Locked", "First Guess", "Second Guess", "Left Alone"] for name in NAMES}, names)
        path, = self.songs(session, "Locked")
        alone, = self.songs(session, "Left Alone")
        digest = rig.digest(alone)
        self.search(session, [path], [f"{name}::0" for name in NAMES[::-1]], [alone])
        self.assert_words(path, NAMES[-1], "Second Guess")
        self.assertEqual(rig.digest(alone), digest)
        self.assertEqual([asked(session, title) for title in ("Locked", "First Guess", "Second Guess", "Left Alone")],
                         [["Lastfm"], [], [NAMES[-1]], ["Lastfm"]])


def asked(session, title):
    """The sites that were asked for the title, in order; several requests to one site in a row count once."""
    found = []
    for request in session.sites.requests():
        is_search = title in " ".join([request.path, *map(str, request.query.values())])
        if is_search and found[-1:] != [request.site]:
            found.append(request.site)
    return found


if __name__ == "__main__":
    unittest.main()
