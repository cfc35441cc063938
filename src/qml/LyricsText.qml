// SPDX-License-Identifier: MIT
import QtQuick 2.2
import QtQuick.Controls 1.1
import com.quillmarsh 1.0
import "."

// The words themselves, to read, to select and, when that is on, to edit. Plain text, whatever it holds.
ScrollView {
    id: view

    // What is shown; setting it forgets what can be undone.
    property string shownText
    property bool editing: false
    property int fontSize: 12
    property string label: qsTr("Lyrics")
    readonly property alias area: area
    readonly property bool hasScrollBar: __verticalScrollBar.visible

    // The user changed the text.
    signal edited(string text)

    function toTop() {
        area.cursorPosition = 0;
        flickableItem.contentY = 0;
    }

    // The cursor goes to the first line for which nothing has to be scrolled, so that an edit begins where the user reads.
    function cursorIntoView() {
        var top = flickableItem.contentY;
        area.cursorPosition = top === 0 ? 0 : area.positionAt(0, top + Measures.margin + spacing.lineHeight);
    }

    function scrollTo(y) {
        var end = Math.max(0, flickableItem.contentHeight - flickableItem.height);
        flickableItem.contentY = Math.max(0, Math.min(end, y));
    }

    function scrollBy(distance) {
        scrollTo(flickableItem.contentY + distance);
    }

    function showCursor() {
        var y = area.cursorRectangle.y;
        var bottom = y + area.cursorRectangle.height + Measures.margin;
        if (y - Measures.margin < flickableItem.contentY)
            flickableItem.contentY = Math.max(0, y - Measures.margin);
        else if (bottom > flickableItem.contentY + flickableItem.height)
            flickableItem.contentY = bottom - flickableItem.height;
    }

    // Keys that scroll what can only be read. Whether the key was one of them.
    function scrollByKey(key) {
        if (key === Qt.Key_Up)
            scrollBy(-spacing.lineHeight);
        else if (key === Qt.Key_Down)
            scrollBy(spacing.lineHeight);
        else if (key === Qt.Key_PageUp)
            scrollBy(-flickableItem.height);
        else if (key === Qt.Key_PageDown || key === Qt.Key_Space)
            scrollBy(flickableItem.height);
        else if (key === Qt.Key_Home)
            scrollBy(-flickableItem.contentHeight);
        else if (key === Qt.Key_End)
            scrollBy(flickableItem.contentHeight);
        else
            return false;
        return true;
    }

    horizontalScrollBarPolicy: Qt.ScrollBarAlwaysOff
    style: SlimScrollStyle {}

    onShownTextChanged: {
        if (area.text !== shownText)
            area.replace(shownText);
    }

    TextEdit {
        id: area

        property bool replacing: false

        // The view stays where it is, as far as the new words go: those of another song go to their top by themselves.
        function replace(words) {
            var y = view.flickableItem.contentY;
            replacing = true;
            text = words;
            spacing.apply();
            replacing = false;
            view.scrollTo(y);
        }

        objectName: "lyricsText"
        width: view.viewport.width
        height: Math.max(implicitHeight, view.viewport.height)
        textMargin: Measures.margin
        textFormat: TextEdit.PlainText
        wrapMode: TextEdit.Wrap
        readOnly: !view.editing
        selectByMouse: true
        selectByKeyboard: true
        persistentSelection: true
        activeFocusOnTab: true
        color: appPalette.text
        selectionColor: appPalette.highlight
        selectedTextColor: appPalette.highlightedText
        font.pointSize: view.fontSize

        // The text that it was made with came later than its spacing.
        Component.onCompleted: spacing.apply()
        onTextChanged: {
            if (!replacing)
                view.edited(text);
        }
        onCursorRectangleChanged: {
            if (view.editing && activeFocus && !replacing)
                view.showCursor();
        }
        // What can only be read is scrolled, and its cursor moves only when something is selected, by key or by mouse.
        onCursorPositionChanged: {
            if (activeFocus && !replacing)
                view.showCursor();
        }
        // Tab goes on to the next control; lyrics hold no tabs.
        Keys.onTabPressed: nextItemInFocusChain(true).forceActiveFocus()
        Keys.onBacktabPressed: nextItemInFocusChain(false).forceActiveFocus()
        Keys.onPressed: {
            if (readOnly && (event.modifiers & ~Qt.KeypadModifier) === Qt.NoModifier)
                event.accepted = view.scrollByKey(event.key);
        }

        Accessible.role: Accessible.EditableText
        Accessible.name: view.label
        Accessible.multiLine: true
        Accessible.readOnly: readOnly
        Accessible.editable: !readOnly
        Accessible.focusable: true

        LineSpacing {
            id: spacing

            document: area.textDocument
            proportion: Measures.lyricsLineHeight
            font: area.font
        }
    }
}
