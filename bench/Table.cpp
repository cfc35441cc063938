// SPDX-License-Identifier: MIT
#include "Table.h"

#include <QElapsedTimer>
#include <QTextStream>

namespace {

QTextStream &out()
{
    static QTextStream stream(stdout);
    return stream;
}

void printLine(const QString &name, const QString &size, const QString &time, const QString &reference,
               const QString &ratio, const QString &growth)
{
    out() << name.leftJustified(46) << size.rightJustified(8) << time.rightJustified(12) << reference.rightJustified(13)
          << ratio.rightJustified(8) << QLatin1String("  ") << growth << Qt::endl;
}

QString milliseconds(double seconds)
{
    return QString::number(seconds * 1000, 'f', 1);
}

} // namespace

void BenchTable::printHead()
{
    printLine(QStringLiteral("work"), QStringLiteral("size"), QStringLiteral("ms"), QStringLiteral("reference ms"),
              QStringLiteral("ratio"), QStringLiteral("growth"));
}

void BenchTable::printRow(const QString &name, int size, double seconds, double reference, double smaller, double less)
{
    QString growth;
    if (smaller > 0)
        growth = QStringLiteral("%1 times the work: %2 times").arg(less).arg(seconds / smaller, 0, 'f', 1);
    printLine(name, QString::number(size), milliseconds(seconds), milliseconds(reference),
              QString::number(seconds / reference, 'f', 2), growth);
}

void BenchTable::printNote(const QString &note)
{
    out() << QStringLiteral("  ") << note << Qt::endl;
}

double secondsOf(const std::function<void()> &work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) / 1e9;
}
