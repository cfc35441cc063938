// SPDX-License-Identifier: MIT
import QtQuick 2.2
import QtMultimedia 5.0

// The sound itself. It stands alone so that a system without QtMultimedia lacks this document only.
MediaPlayer {
    readonly property bool playing: playbackState === MediaPlayer.PlayingState
    readonly property bool failed: error !== MediaPlayer.NoError || availability !== MediaPlayer.Available
                                   || status === MediaPlayer.InvalidMedia

    autoLoad: true
}
