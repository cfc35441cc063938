// SPDX-License-Identifier: MIT
import QtQuick 2.2
import QtTest 1.2
import com.quillmarsh 1.0
import "qrc:/qml"
import "qrc:/qml/duration.js" as Duration

TestCase {
    id: testCase

    name: "SongState"

    Component {
        id: state

        SongState {}
    }

    function test_lights_and_words_data() {
        return [
            { tag: "just added", properties: {}, light: "", word: "", line: "" },
            { tag: "waiting", properties: { processState: ModelItem.ProcessWaiting }, light: "yellow", word: "queued", line: "in queue to search..." },
            { tag: "searched for", properties: { processState: ModelItem.ProcessWorking, hasLyrics: true }, light: "yellow", word: "searching...", line: "searching..." },
            { tag: "being written", properties: { processState: ModelItem.ProcessWritingTags, hasLyrics: true }, light: "yellow", word: "saving...", line: "saving the lyrics..." },
            { tag: "with lyrics", properties: { processState: ModelItem.ProcessComplete, hasLyrics: true }, light: "green", word: "", line: "" },
            { tag: "with lyrics, never searched for", properties: { hasLyrics: true }, light: "green", word: "", line: "" },
            { tag: "nothing found", properties: { processState: ModelItem.ProcessComplete }, light: "", word: "no lyrics found", line: "no lyrics found" },
            { tag: "search failed", properties: { processState: ModelItem.ProcessComplete, errorString: "down" }, light: "", word: "search failed", line: "down" },
            { tag: "search failed for a song with lyrics", properties: { processState: ModelItem.ProcessComplete, hasLyrics: true, errorString: "down" }, light: "green", word: "search failed", line: "down" },
            { tag: "nothing found for a song with lyrics", properties: { processState: ModelItem.ProcessComplete, hasLyrics: true, foundNothing: true }, light: "green", word: "no lyrics found", line: "no lyrics found" },
            { tag: "write failed", properties: { processState: ModelItem.ProcessComplete, hasLyrics: true, writeError: "disk full" }, light: "green", word: "not saved", line: "Not saved: disk full" },
            { tag: "search failed after a write that did", properties: { processState: ModelItem.ProcessComplete, writeError: "disk full", errorString: "down" }, light: "", word: "not saved", line: "Not saved: disk full" },
            { tag: "failed", properties: { processState: ModelItem.ProcessFailed }, light: "", word: "failed", line: "failed" },
            { tag: "no names", properties: { processState: ModelItem.ProcessNotSuitable }, light: "red", word: "no names", line: "A search needs an artist and a title." },
            { tag: "no names, after a search that failed", properties: { processState: ModelItem.ProcessNotSuitable, errorString: "down" }, light: "red", word: "no names", line: "A search needs an artist and a title." },
            { tag: "its reader died", properties: { processState: ModelItem.ProcessNotSuitable, readFailed: true, errorString: "broken" }, light: "red", word: "cannot be read", line: "broken" },
            { tag: "bad file", properties: { tagsLoaded: true, badFile: true, hasLyrics: true, processState: ModelItem.ProcessComplete }, light: "red", word: "cannot be read", line: "This file cannot be read." },
            { tag: "of unknown length, searched for", properties: { tagsLoaded: true, badFile: true, processState: ModelItem.ProcessWorking }, light: "yellow", word: "searching...", line: "searching..." },
            { tag: "bad, but not read yet", properties: { badFile: true, processState: ModelItem.ProcessWaiting }, light: "yellow", word: "queued", line: "in queue to search..." }
        ];
    }

    function test_lights_and_words(row) {
        var made = createTemporaryObject(state, testCase, row.properties);
        compare(made.light, row.light);
        compare(made.word, row.word);
        compare(made.line, row.line);
        verify(made.spokenWord !== "", "a light is never the only sign");
    }

    function test_duration_data() {
        return [
            { tag: "nothing", seconds: 0, text: "0:00" },
            { tag: "below a minute", seconds: 9.9, text: "0:09" },
            { tag: "minutes", seconds: 75, text: "1:15" },
            { tag: "hours", seconds: 3725, text: "1:02:05" },
            { tag: "negative", seconds: -5, text: "0:00" },
            { tag: "not a number", seconds: NaN, text: "0:00" }
        ];
    }

    function test_duration(row) {
        compare(Duration.text(row.seconds), row.text);
    }
}
