// SPDX-License-Identifier: MIT
#pragma once

#include <QRandomGenerator>
#include <QString>
#include <QStringList>
#include <QTest>

// Small texts put together from the given pieces, the same in every run.
class RandomText
{
public:
    explicit RandomText(QStringList pieces, quint32 seed = 20)
        : m_pieces(std::move(pieces))
        , m_random(seed)
    {
    }

    QString next(int mostPieces)
    {
        QString text;
        for (int i = m_random.bounded(mostPieces + 1); i > 0; --i)
            text += m_pieces.at(m_random.bounded(m_pieces.size()));
        return text;
    }

private:
    QStringList m_pieces;
    QRandomGenerator m_random;
};

// Fails unless two functions give the same for each of 3000 small texts put together from `pieces`, which stand there
// separated by blanks; "~" in a piece is a blank. At least `leastResults` of the texts must give something.
template<typename Function, typename Plain>
void compareOnRandomTexts(const QString &pieces, Function function, Plain plain, int leastResults = 200)
{
    RandomText texts(pieces.split(QLatin1Char(' ')));
    int results = 0;
    for (int i = 0; i < 3000; ++i) {
        const QString text = texts.next(6 + i % 30).replace(QLatin1Char('~'), QLatin1Char(' '));
        const auto expected = plain(text);
        results += expected.isEmpty() ? 0 : 1;
        QVERIFY2(function(text) == expected, qPrintable(text));
    }
    QVERIFY2(results >= leastResults, "the texts must give something often enough to say something");
}
