// SPDX-License-Identifier: MIT
import QtQuick 2.2
import QtQuick.Window 2.2
import "."

// A picture of a button. Its address names the palette's colour, so that a change of the palette asks for it anew. Its
// size has to be said: a picture of twice the resolution would be taken for one of twice the size. It is asked for in the
// screen's own pixels, so that it is sharp at any size of text.
Image {
    // The name in the resources, without ".png"; empty shows nothing.
    property string imageName
    property color baseColor: appPalette.windowText

    width: Measures.icon
    height: Measures.icon
    sourceSize { width: width * Screen.devicePixelRatio; height: height * Screen.devicePixelRatio }
    source: imageName === "" ? "" : "image://btnimage/" + imageName + "/" + Screen.devicePixelRatio + "/" + baseColor
}
