// SPDX-License-Identifier: MIT
import QtQuick 2.2
import "."

// The left side of the window. The list takes longer to load than all else, so it is made when the first frame is on the
// screen, which has the ground and the invitation only.
Rectangle {
    id: side

    // The first frame is on the screen.
    property bool complete: false
    property int qtVersion: 0
    // The user has taken the keyboard to another part of the window.
    property bool keyboardElsewhere: false

    signal removeSelectedRequested()
    signal removeAllRequested()
    signal removeWithLyricsRequested()
    signal forceSearchRequested()
    signal exportLyricsRequested()
    signal copyPathRequested(int row)
    signal searchInBrowserRequested(int row)
    signal addFilesRequested()
    signal addFolderRequested()
    // The user wants the list so many pixels wider.
    signal edgeMoved(int distance)
    // The list cannot be made.
    signal failed(url source)

    function takeFocus() {
        if (emptyList.visible && !emptyList.allHidden)
            emptyList.takeFocus();
        else if (pane.item !== null)
            pane.item.takeFocus();
    }

    onCompleteChanged: {
        pane.setSource("ListPane.qml", { side: side });
        if (!keyboardElsewhere)
            takeFocus();
    }

    // Another colour node, to the eye the same, whenever the scroll bar goes: the software renderer does not paint over
    // what is left of it by itself.
    color: pane.item !== null && pane.item.hasScrollBar ? appPalette.listBackground
                                                        : Qt.tint(appPalette.listBackground, "#01808080")

    Connections {
        target: mainModel

        function onRestoringChanged() {
            if (emptyList.visible && !side.keyboardElsewhere)
                side.takeFocus();
        }
    }

    Loader {
        id: pane

        anchors.fill: parent
        focus: true
        onStatusChanged: {
            if (status === Loader.Error)
                side.failed(source);
        }
    }

    EmptyList {
        id: emptyList

        anchors { centerIn: pane; verticalCenterOffset: pane.item !== null ? (pane.item.above - pane.item.below) / 2 : 0 }
        width: parent.width - 4 * Measures.grid
        visible: (pane.item === null || pane.item.count === 0) && !mainModel.restoring
        allHidden: proxyModel.hiddenCount > 0
        onAddFilesRequested: side.addFilesRequested()
        onAddFolderRequested: side.addFolderRequested()
    }

    SplitterHandle {
        anchors { right: parent.right; top: parent.top; bottom: parent.bottom }
        onMoved: side.edgeMoved(distance)
    }
}
