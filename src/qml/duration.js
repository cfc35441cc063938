// SPDX-License-Identifier: MIT
.pragma library

// Whole seconds as "0:05", "1:15" or "1:02:05"; what is below zero counts as zero.
function text(seconds) {
    var rest = Math.max(0, Math.floor(seconds) || 0);
    var hours = Math.floor(rest / 3600);
    var minutes = Math.floor(rest / 60) % 60;
    rest %= 60;
    return (hours > 0 ? hours + ":" + (minutes < 10 ? "0" : "") : "") + minutes + ":" + (rest < 10 ? "0" : "") + rest;
}
