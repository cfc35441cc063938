// SPDX-License-Identifier: MIT
#pragma once

#include <QRandomGenerator>
#include <QStringList>
#include <QTest>

// Fails unless two functions give the same for each of 3000 small texts put together from `pieces`, which stand there
// separated by blanks; "~" in a piece is a blank. The texts are the same in every run. At least `leastResults` of them
// must give something.
template<typename Function, typename Plain>
void compareOnRandomTexts(const QString &pieces, Function function, Plain plain, int leastResults = 200)
{
    QStringList words = pieces.split(QLatin1Char(' '));
    words.replaceInStrings(QStringLiteral("~"), QStringLiteral(" "));
    QRandomGenerator random(20);
    int results = 0;
    for (int i = 0; i < 3000; ++i) {
        QString text;
        for (int left = random.bounded(7 + i % 40); left > 0; --left)
            text += words.at(random.bounded(words.size()));
        const auto expected = plain(text);
        results += expected.isEmpty() ? 0 : 1;
        QVERIFY2(function(text) == expected, qPrintable(text));
    }
    QVERIFY2(results >= leastResults, "the texts must give something often enough to say something");
}
