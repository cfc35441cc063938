# SPDX-License-Identifier: MIT
"""The songs that the demo's lyrics sites know. Artists, titles and words were made up for this program."""

LYRICS = {
    ("Nora Vale", "Harbour Lights"): """\
The ferry counts the harbour lights,
one for every Sunday gone,
I know them all by where they lean,
I know which ones are never on.

Keep one burning, keep one low,
keep one for the ones who row,
I'm 100% sure I saw you wave
& that's enough to go.""",
    ("Nora Vale", "Paper Boats"): """\
We folded all the letters into boats
and set them on the rain along the street,
the ink ran out in little grey notes,
the gutters kept the beat.

Sail on, sail on, my paper fleet,
the morning's wide and slow,
whatever words you cannot keep
the river has to know.""",
    ("The Cartographers", "Low Tide (Live)"): """\
Draw me a coast that will not move,
leave out the rocks we hit,
a compass rose, a steady groove,
a name for all of it.

Low tide, low tide,
the map was never wide enough,
"here be us", we wrote inside
<and left the edges rough>.""",
    ("The Cartographers", "Glass Mountain"): """\
Up the glass mountain, heel and toe,
the sun came through the floor,
and every step was see-through snow
and every see-through snow was more.

Don't look down, it's only sky,
don't look up, it's further still.""",
    ("Северный Ветер", "Слово за слово"): """\
Слово за слово, шаг за шагом,
лёд под ногами поёт,
кто-то рисует белым флагом
то, что нас дальше ведёт.

Слово за слово, дом за домом,
окна считают огни,
каждое утро станет знакомым,
если мы в нём не одни.""",
    ("Ida & Tom", "Seventh Street"): """\
Seventh Street has seven lamps
and six of them are shy,
the seventh hums a tune it found
beneath a tram gone by.

And you said "wait",
and I said "why?",
and the lamp said nothing at all.""",
    ("Marl", "Undertow"): """\
Slow hands under slower water,
somebody's son, somebody's daughter,
the undertow is only asking
what you would have done.

Let go, let go, it says, and after
let go of letting go.""",
    ("Agnès Rivière", "Café d'hiver"): """\
Le café fume, la vitre pleure,
un chien s'endort sous le comptoir,
l'hiver est là depuis une heure
et veut déjà tout savoir.

Garde ta place, garde ta tasse,
même la neige a peur du noir.""",
    ("Nora Vale", "Second Kettle"): """\
First kettle for the waking up,
the second for the news,
the third one is an empty cup
I'm too polite to use.""",
    ("The Cartographers", "Legend and Scale"): """\
One inch is a mile and a mile is a year,
the dotted line is where we were near,
the blue is for water, the grey is for doubt,
and the fold in the middle is where we fell out.""",
}

# The site that has a song; those that are not named are on LyricsFreak.
SITE_OF = {
    "Paper Boats": "Genius",
    "Слово за слово": "Megalyrics",
    "Seventh Street": "AZLyrics",
    "Glass Mountain": "DarkLyrics",
    "Undertow": "Genius",
    "Second Kettle": "MusixMatch",
    "Legend and Scale": "Megalyrics",
}
# Names as they stand in somebody's tags, and the right ones.
CORRECTIONS = {("The Kartografers", "Legend and Scale"): [("The Cartographers", "Legend and Scale")]}
