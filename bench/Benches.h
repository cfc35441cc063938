// SPDX-License-Identifier: MIT
#pragma once

// Each prints its rows. All work on files of their own in a temporary folder and talk to 127.0.0.1 alone.

// Tags read through the model, beside a bare TagLib loop over the same files.
void benchReading();
// Urls added to the list, beside a QUrl, a QFileInfo look-up and a hash insert for each.
void benchAdding();
// Rows hidden, shown, selected and removed in the list, scattered and all at once, beside a pass over a vector of
// flags.
void benchSelecting();
// Lyrics stored in a song without padding, on a checked copy, beside a bare TagLib save in place and a sync.
void benchSaving();
// A tree of folders scanned, beside `find` on the same tree.
void benchScanning();
// Pages of 1 MiB that a site with bad intent could send, read for each site client, beside one lower-case copy of them.
void benchPages();
// Songs searched on a site that takes 50 ms a page, beside the bound that six connections to a host set.
void benchSearching();
// The window: its first frame with an empty and a long list, beside a bare window with a scene; how long the event loop
// stands still while songs load and are searched for and the list is scrolled; memory of a row.
void benchWindow();
