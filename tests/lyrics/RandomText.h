// SPDX-License-Identifier: MIT
#pragma once

#include <QRandomGenerator>
#include <QString>
#include <QStringList>

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
