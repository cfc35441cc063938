// SPDX-License-Identifier: MIT
import QtQuick 2.2
import "."

// What is seen of the list of songs outlives a reset of its rows, after which a view begins at its top.
QtObject {
    // The view of the rows.
    property var view: null
    // Before the reset: how far the view was scrolled, and where in it the current row was.
    property real keptY: 0
    property real keptTop: 0

    function keep() {
        keptY = view.contentY - view.originY; // rows that went above the view have moved its origin
        keptTop = view.currentItem !== null ? view.currentItem.y - view.contentY : -Measures.rowHeight;
    }

    // The current row stays where it was seen; where it was not, the view does.
    function restore() {
        var seen = view.currentIndex >= 0 && keptTop > -Measures.rowHeight && keptTop < view.height;
        var wanted = seen ? view.currentIndex * Measures.rowHeight - keptTop : keptY;
        view.contentY = Math.max(0, Math.min(wanted, view.count * Measures.rowHeight - view.height));
        if (seen)
            view.positionViewAtIndex(view.currentIndex, ListView.Contain);
    }
}
