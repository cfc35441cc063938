// SPDX-License-Identifier: MIT
#include "Table.h"

#include <QStringList>
#include <QTextStream>

namespace {

int aims = 0;
int aimsMet = 0;

QTextStream &out()
{
    static QTextStream stream(stdout);
    return stream;
}

void printLine(const QString &work, const QString &size, const QString &value, const QString &reference,
               const QString &ratio, const QString &growth, const QString &aim)
{
    out() << work.leftJustified(72) << size.rightJustified(8) << value.rightJustified(14)
          << reference.rightJustified(13) << ratio.rightJustified(8) << growth.rightJustified(13) << QLatin1String("  ")
          << aim << Qt::endl;
}

QString number(double value)
{
    return value > 0 ? QString::number(value, 'f', value < 1 ? 3 : value < 100 ? 2 : 0) : QString();
}

// "ratio 3, growth 5: met"
QString judged(const BenchTable::Aim &aim, double ratio, double growth, const BenchTable::Row &row)
{
    QStringList parts;
    bool isMet = true;
    const auto judge = [&parts, &isMet](const QString &part, double most, double value) {
        if (most <= 0)
            return;
        parts.append(part.arg(most));
        isMet = isMet && value <= most;
    };
    judge(QStringLiteral("ratio %1"), aim.ratio, ratio);
    judge(QStringLiteral("growth %1"), aim.growth, growth);
    judge(QStringLiteral("%1 ") + row.unit, aim.value, row.value);
    if (parts.isEmpty())
        return {};
    ++aims;
    aimsMet += isMet ? 1 : 0;
    return parts.join(QLatin1String(", ")) + QLatin1String(isMet ? ": met" : ": MISSED");
}

} // namespace

void BenchTable::printHead()
{
    printLine(QStringLiteral("work / reference"), QStringLiteral("size"), QStringLiteral("value"),
              QStringLiteral("reference"), QStringLiteral("ratio"), QStringLiteral("growth"),
              QStringLiteral("aim: at most"));
}

void BenchTable::print(const Row &row)
{
    const double ratio = row.reference > 0 ? row.value / row.reference : 0;
    const double growth = row.smaller > 0 ? row.value / row.smaller : 0;
    printLine(row.work, QString::number(row.size), number(row.value) + QLatin1Char(' ') + row.unit,
              number(row.reference), number(ratio),
              growth > 0 ? QStringLiteral("%1x: %2").arg(row.less).arg(number(growth)) : QString(),
              judged(row.aim, ratio, growth, row));
}

void BenchTable::printRow(const QString &work, int size, double seconds, double reference, double smaller, double less,
                          const Aim &aim)
{
    print({work, size, seconds * 1000, reference * 1000, smaller * 1000, less, aim});
}

void BenchTable::printTurn(const QString &work, int size, const Turn &longest, double most)
{
    const TurnWatch idle;
    turnFor(std::chrono::seconds(3));
    print({work + QStringLiteral(" / of an idle loop"), size, longest.wall, idle.longest().wall, 0, 0, {0, 0, most}});
    printNote(QStringLiteral("of that turn the thread worked for %1 ms, and in no turn for more than %2 ms")
                  .arg(longest.work, 0, 'f', 1)
                  .arg(longest.mostWork, 0, 'f', 1));
}

void BenchTable::printNote(const QString &note)
{
    out() << QStringLiteral("  ") << note << Qt::endl;
}

void BenchTable::printTail()
{
    printNote(QStringLiteral("%1 of %2 aims are met").arg(aimsMet).arg(aims));
}
