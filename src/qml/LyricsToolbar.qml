// SPDX-License-Identifier: MIT
import QtQuick 2.2
import "."

// The buttons of the lyrics.
Row {
    id: toolbar

    property bool editing: false
    property bool modified: false
    property bool editable: false
    property bool hasLyrics: false
    // There is something to save beside a draft.
    property bool saveOffered: false
    property int fontSize: 12
    property int smallestFont: 6
    property int largestFont: 40
    property string searchProvider

    signal editToggled()
    signal saveRequested()
    signal cancelRequested()
    signal searchRequested()
    signal copyRequested()
    signal browserRequested()
    signal fontSizeRequested(int size)

    spacing: Measures.halfGrid

    ImageButton {
        objectName: "editButton"
        imageName: "edit_small"
        text: qsTr("Edit lyrics (F2)")
        checked: toolbar.editing
        // A draft is left by Save or Cancel, never by the way.
        enabled: toolbar.editing ? !toolbar.modified : toolbar.editable
        onClicked: toolbar.editToggled()
    }

    ImageButton {
        objectName: "saveButton"
        imageName: "save_small"
        text: qsTr("Save lyrics (Ctrl+S)")
        visible: toolbar.editing || toolbar.saveOffered
        onClicked: toolbar.saveRequested()
    }

    ImageButton {
        objectName: "cancelButton"
        imageName: "save_cancel_small"
        text: qsTr("Cancel editing (Esc)")
        visible: toolbar.editing
        onClicked: toolbar.cancelRequested()
    }

    ImageButton {
        objectName: "searchButton"
        imageName: "search_small"
        text: qsTr("Force to search lyrics (Ctrl+R)")
        onClicked: toolbar.searchRequested()
    }

    ImageButton {
        objectName: "clipboardButton"
        imageName: "clipboard_small"
        text: qsTr("Copy lyrics to clipboard")
        enabled: toolbar.hasLyrics
        onClicked: toolbar.copyRequested()
    }

    ImageButton {
        objectName: "browserButton"
        imageName: "browser"
        text: qsTr("Search lyrics with %1", "name of a search engine").arg(toolbar.searchProvider)
        onClicked: toolbar.browserRequested()
    }

    ImageButton {
        objectName: "smallerButton"
        imageName: "font_size_decrease"
        text: qsTr("Smaller text")
        enabled: toolbar.fontSize > toolbar.smallestFont
        onClicked: toolbar.fontSizeRequested(toolbar.fontSize - 1)
    }

    ImageButton {
        objectName: "largerButton"
        imageName: "font_size_increase"
        text: qsTr("Larger text")
        enabled: toolbar.fontSize < toolbar.largestFont
        onClicked: toolbar.fontSizeRequested(toolbar.fontSize + 1)
    }
}
