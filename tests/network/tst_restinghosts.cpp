// SPDX-License-Identifier: MIT
#include "network/RestingHosts.h"
#include "support/TestTable.h"

using namespace std::chrono_literals;

class tst_RestingHosts : public QObject
{
    Q_OBJECT

private slots:
    // `events`, each a second behind the last: "t" a request that times out, "a" an answer, a number: a pause of so
    // many seconds that was asked for. Silence is told as such when it ends last.
    void theLastPauseHolds_data()
    {
        addTextColumns("events");
        QTest::addColumn<int>("seconds");
        QTest::addColumn<bool>("silent");
        addRow("two time-outs", "t t", 0, false);
        addRow("silence", "t t t", 180, true);
        addRow("an answer ends silence", "t t t a", 0, false);
        addRow("the longer of two pauses", "100 30", 99, false);
        addRow("an answer ends no pause", "100 a", 99, false);
        addRow("a pause outlives a longer silence that an answer ends", "100 t t t a", 96, false);
        addRow("a pause that was asked for during silence outlives it, too", "t t t 100 a", 99, false);
        addRow("silence that ends behind a pause", "100 t t t", 180, true);
        addRow("silence that ends before a pause", "600 t t t", 597, false);
    }

    void theLastPauseHolds()
    {
        QFETCH(QString, events);
        const QUrl url("http://127.0.0.1/"_s);
        std::chrono::steady_clock::time_point now;
        RestingHosts hosts([&now] { return now; });
        for (const QString &event : events.split(QLatin1Char(' '))) {
            now += 1s;
            if (event == "t"_s)
                hosts.noteTimeout(url, "silent"_s);
            else if (event == "a"_s)
                hosts.noteAnswer(url);
            else
                hosts.rest(url, std::chrono::seconds(event.toInt()));
        }
        QTEST(static_cast<int>(hosts.remaining(url).count()), "seconds");
        QTEST(!hosts.silence(url).isEmpty(), "silent");
    }
};

QTEST_APPLESS_MAIN(tst_RestingHosts)
#include "tst_restinghosts.moc"
