// SPDX-License-Identifier: MIT
import QtQuick 2.2
import com.quillmarsh 1.0

// How a song stands, in words and as a light: the one place for these words, used by the rows and by the details.
QtObject {
    property int processState: ModelItem.ProcessIdle
    property bool tagsLoaded: false
    // The file is not one that can be played.
    property bool badFile: false
    property bool hasLyrics: false
    property string errorString
    // Nothing is known of the file, and the error text says why.
    property bool readFailed: false
    // Why the last write failed; empty when it did not.
    property string writeError
    // The artist or the title was changed, and is in no file yet.
    property bool namesEdited: false
    // The last search ended without lyrics.
    property bool foundNothing: false

    readonly property bool busy: processState === ModelItem.ProcessWaiting || processState === ModelItem.ProcessWorking
                                 || processState === ModelItem.ProcessWritingTags
    readonly property bool settled: processState === ModelItem.ProcessIdle || processState === ModelItem.ProcessComplete
    // What is being done with a song comes before what is known of it.
    readonly property bool unreadable: !busy && (readFailed || (tagsLoaded && badFile))
    readonly property bool bad: (tagsLoaded && badFile) || processState === ModelItem.ProcessNotSuitable

    // What the row's word says then is a warning, which the light is not.
    readonly property bool unsaved: !unreadable && (namesEdited ? !busy : processState === ModelItem.ProcessComplete && writeError !== "")

    // "yellow", "green", "red", or empty for none. A song that is bad is red, whatever lyrics it has.
    readonly property string light: busy ? "yellow" : bad ? "red" : hasLyrics && settled ? "green" : ""
    readonly property string lightSource: light === "" ? "" : "qrc:/img/" + light + "Light.png"

    // For the row: empty when there is nothing to say that the green light does not say.
    readonly property string word: unreadable ? qsTr("cannot be read") : unsaved ? qsTr("not saved") : wordOf(processState)
    // For a screen reader, which sees no light.
    readonly property string spokenWord: word !== "" ? word : light === "green" ? qsTr("has lyrics") : qsTr("no lyrics")
    // For the details.
    readonly property string line: unreadable && errorString === "" ? qsTr("This file cannot be read.") : lineOf(processState)

    function wordOf(state) {
        switch (state) {
        case ModelItem.ProcessNotSuitable:
            return qsTr("no names");
        case ModelItem.ProcessWaiting:
            return qsTr("queued");
        case ModelItem.ProcessWorking:
            return qsTr("searching...");
        case ModelItem.ProcessWritingTags:
            return qsTr("saving...");
        case ModelItem.ProcessFailed:
            return qsTr("failed");
        case ModelItem.ProcessComplete:
            return errorString !== "" ? qsTr("search failed")
                 : hasLyrics && !foundNothing ? "" : qsTr("no lyrics found");
        }
        return "";
    }

    function lineOf(state) {
        switch (state) {
        case ModelItem.ProcessWaiting:
            return qsTr("in queue to search...");
        case ModelItem.ProcessWorking:
            return qsTr("searching...");
        case ModelItem.ProcessWritingTags:
            return qsTr("saving the lyrics...");
        case ModelItem.ProcessNotSuitable:
            return readFailed ? errorString : qsTr("A search needs an artist and a title.");
        case ModelItem.ProcessFailed:
            return errorString !== "" ? errorString : qsTr("failed");
        case ModelItem.ProcessComplete:
            return writeError !== "" ? qsTr("Not saved: %1", "%1 is the reason").arg(writeError)
                 : errorString !== "" ? errorString : hasLyrics && !foundNothing ? "" : qsTr("no lyrics found");
        }
        return errorString;
    }
}
