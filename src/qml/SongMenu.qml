// SPDX-License-Identifier: MIT
import QtQuick 2.2
import QtQuick.Controls 1.1
import QtQuick.Window 2.2
import com.quillmarsh 1.0

// The commands for the songs of the list.
Menu {
    id: menu

    // The row that was hit; -1 for none.
    property int row: -1
    // Of the song that was hit; -1 for none. The rows may move while the menu is open.
    property int songId: -1
    property int selectedCount: 0
    property string searchProvider
    // The version of Qt as one number, 5.15 being 5150 or 551; below 550 a menu had to be told its place.
    property int qtVersion: 0
    readonly property bool forSelection: row >= 0 && selectedCount > 0
    readonly property bool forRow: row >= 0 && selectedCount <= 1

    // The arrow keys move no focus in such a menu, so a screen reader would hear nothing of them.
    property SpokenFocus spoken: SpokenFocus {
        item: menu.__currentIndex >= 0 ? menu.items[menu.__currentIndex].__visualItem : null
    }

    signal forceSearch()
    signal exportLyrics()
    signal removeSelected()
    signal removeAll()
    signal copyPath()
    signal searchInBrowser()

    // At the pointer, which is at this place of the scene.
    function openAtPointer(x, y) {
        if (qtVersion >= 550)
            popup();
        else
            openAt(x, y);
    }

    function openAt(x, y) {
        __popup(Qt.rect(x, y, 0, 0), -1, 0);
    }

    // The content and its window are made anew each time.
    onPopupVisibleChanged: {
        if (__popupVisible) {
            __contentItem.item.Accessible.name = title;
            __contentItem.item.Window.window.title = title;
        }
    }

    MenuItem {
        text: qsTr("Force to search lyrics")
        visible: menu.forSelection
        onTriggered: menu.forceSearch()
    }

    MenuItem {
        text: qsTr("Export lyrics to TXT file")
        visible: menu.forSelection
        onTriggered: menu.exportLyrics()
    }

    MenuItem {
        text: qsTr("Remove selected")
        visible: menu.forSelection
        onTriggered: menu.removeSelected()
    }

    MenuItem {
        text: qsTr("Remove all")
        onTriggered: menu.removeAll()
    }

    MenuItem {
        text: qsTr("Copy file's path to clipboard")
        visible: menu.forRow
        onTriggered: menu.copyPath()
    }

    MenuItem {
        text: qsTr("Search lyrics with %1", "name of a search engine").arg(menu.searchProvider)
        visible: menu.forRow
        onTriggered: menu.searchInBrowser()
    }
}
