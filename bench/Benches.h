// SPDX-License-Identifier: MIT
#pragma once

// Each prints its rows. All work on files of their own in a temporary folder and talk to 127.0.0.1 alone.

// What a row of the list holds of the machine's memory, without a cover and with one.
void benchMemory();
// Tags read through the model, beside a bare TagLib loop over the same files that decodes the same covers.
void benchReading();
// Urls added to the list, beside a QUrl, a QFileInfo look-up and a hash insert for each.
void benchAdding();
// Rows selected, hidden, shown and removed in the window, scattered and all at once, beside a pass over a vector of
// flags.
void benchSelecting();
// The start of the program to its first frame and to the first rows of its list, with an empty and with a long list,
// beside that of a program that shows a bare window with a scene.
void benchStarting();
// A tree of folders scanned, beside `find` on the same tree.
void benchScanning();
// How long the event loop stands still while songs with large covers load and the list is scrolled.
void benchScrolling();
// Songs searched on six sites: slow ones, beside the bound that ten songs at a time and six connections to a host set,
// and fast ones, beside a bare loop of the same requests; and how long it takes until what was found is stored too.
void benchSearching();
// Lyrics stored in songs as the list does it, on checked copies, beside a bare TagLib save in place and a sync.
void benchSaving();
// Pages of 1 MiB cleaned, and such as a site with bad intent could send read for each site client, beside 256 KiB of
// the same.
void benchPages();
