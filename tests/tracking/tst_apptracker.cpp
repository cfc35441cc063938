// SPDX-License-Identifier: MIT
#include "tracking/AppTracker.h"

#include "network/AccessManager.h"
#include "network/Endpoints.h"
#include "support/LoopbackServer.h"
#include "support/TestFolder.h"
#include "support/TestTable.h"

#include <QSettings>
#include <QSignalSpy>

#include <functional>

namespace {

const QString clientId = "0123abcd-89ab-4def-8123-0123456789ab"_s;
const QByteArray beginning = "v=1&tid=UA-73051829-04&cid=0123abcd-89ab-4def-8123-0123456789ab&t=event"
                             "&an=Versewell&av=1.5.6";

using Deed = std::function<void(AppTracker *)>;

void waitForSystem(AppTracker *tracker)
{
    tracker->findSystem();
    QTRY_VERIFY(tracker->searchExample({}, {}, {}).contains("X11"_s));
}

} // namespace

Q_DECLARE_METATYPE(Deed)

class tst_AppTracker : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_folder.holdSettings();
        QCoreApplication::setOrganizationName("Quillmarsh"_s);
        QCoreApplication::setApplicationName("Versewell"_s);
        QCoreApplication::setApplicationVersion("1.5.6"_s);
    }

    void init()
    {
        m_collector = std::make_unique<LoopbackServer>();
        m_collector->route("/collect"_s, LoopbackResponse::page("GIF89a"));
        useCollector(m_collector->base());
    }

    void eventsAreSentWhole_data()
    {
        QTest::addColumn<Deed>("deed");
        QTest::addColumn<QByteArray>("event");
        const auto row = [](const char *sentence, const Deed &deed, const char *event) {
            addRow(sentence, deed, QByteArray(event));
        };
        const auto member = [](void (AppTracker::*operation)()) {
            return Deed([operation](AppTracker *tracker) { (tracker->*operation)(); });
        };
        row("start", member(&AppTracker::trackStart), "&ec=usage&ea=start&sc=start");
        row("quit", member(&AppTracker::trackQuit), "&ec=usage&ea=quit&sc=end");
        row("Facebook", member(&AppTracker::trackFacebook), "&ec=social&ea=facebook");
        row("Google+", member(&AppTracker::trackGooglePlus), "&ec=social&ea=gplus");
        row("Twitter", member(&AppTracker::trackTwitter), "&ec=social&ea=twitter");
        row("donation", member(&AppTracker::trackDonation), "&ec=donate&ea=donate");
        row(
            "update", [](AppTracker *tracker) { tracker->trackUpdate("1.5.5"_s); }, "&ec=update&ea=update&el=1.5.5");
        row(
            "a search with names that mean something in a form",
            [](AppTracker *tracker) { tracker->trackSearch(" AC+DC & \xC3\xBC "_s, "100%41 = 2"_s); },
            "&ec=usage&ea=search&el=AC%2BDC%20%26%20%C3%BC%20%2F%2F%20100%2541%20%3D%202");
        row(
            "a search without a title", [](AppTracker *tracker) { tracker->trackSearch("Nora"_s, " "_s); },
            "&ec=usage&ea=search&el=Nora");
        row(
            "a value stands before the label, also for the start",
            [](AppTracker *tracker) { tracker->trackEvent("a"_s, "start"_s, "l"_s, -3); },
            "&ec=a&ea=start&sc=start&ev=-3&el=l");
    }

    void eventsAreSentWhole()
    {
        QFETCH(Deed, deed);
        QFETCH(QByteArray, event);
        AppTracker tracker;
        AccessManager manager;
        tracker.setNetworkAccessManager(&manager);
        QCOMPARE(tracker.allow(clientId), clientId);
        tracker.trackEvent({}, "search"_s);
        tracker.trackEvent("usage"_s, {});
        tracker.trackSearch("  "_s, "title"_s);
        deed(&tracker);
        QTRY_COMPARE(m_collector->requests().size(), 1);
        const LoopbackRequest &request = m_collector->requests().first();
        QCOMPARE(request.method + ' ' + request.target, QByteArray("POST /collect"));
        QCOMPARE(request.body, beginning + event);
        QCOMPARE(request.header("Content-Type"), QByteArray("application/x-www-form-urlencoded"));
        QVERIFY2(request.header("User-Agent").startsWith("Versewell/1.5.6 (X11; U; Linux "),
                 request.header("User-Agent").constData());
    }

    void theExampleIsWhatIsSent()
    {
        m_collector->route("/collect"_s, LoopbackResponse::page({}).with("Set-Cookie", "uid=1"));
        AccessManager manager;
        AppTracker tracker;
        tracker.setNetworkAccessManager(&manager);
        tracker.allow(clientId);
        tracker.trackStart();
        QTRY_COMPARE(m_collector->requests().size(), 1);
        QTest::qWait(0); // the cookie arrives
        tracker.trackSearch("Nora Vale"_s, "Harbour"_s);
        QTRY_COMPARE(m_collector->requests().size(), 2);
        const LoopbackRequest &sent = m_collector->requests().last();
        const QStringList shown = tracker.searchExample("Nora Vale"_s, "Harbour"_s, clientId).split(QLatin1Char('\n'));
        QCOMPARE(shown.first(), "POST "_s + m_collector->base() + "/collect"_s);
        const QList<QByteArray> protocol{"Host", "Connection", "Content-Length"};
        for (const auto &[name, value] : sent.headers)
            QVERIFY2(protocol.contains(name) || shown.contains(QString::fromLatin1(name + ": " + value)),
                     name.constData());
        const QString body = QUrl::fromPercentEncoding(sent.body);
        QCOMPARE(shown.mid(shown.indexOf(QString()) + 1), body.split(QLatin1Char('&')));
    }

    // Neither a request nor a connection, and the end of the session is told all the same, but not at once.
    void nobodyHearsOfAnything_data()
    {
        addTextColumns("collector");
        QTest::addColumn<bool>("isAllowed"); // still
        addRow("not allowed any more", "", false);
        addRow("no collector", "http://collector.example", true);
    }

    void nobodyHearsOfAnything()
    {
        QFETCH(QString, collector);
        QFETCH(bool, isAllowed);
        if (!collector.isEmpty())
            useCollector(collector);
        AppTracker tracker;
        tracker.allow(clientId);
        if (!isAllowed) {
            waitForSystem(&tracker);
            tracker.forbid();
        }
        QSignalSpy quitTracked(&tracker, &AppTracker::quitTracked);
        tracker.trackStart();
        tracker.trackSearch("Nora Vale"_s, "Harbour"_s);
        tracker.trackQuit();
        QCOMPARE(quitTracked.size(), 0);
        QTRY_COMPARE(quitTracked.size(), 1);
        waitForSystem(&tracker);
        QCOMPARE(m_collector->requests().size() + m_collector->mostConnections(), 0);
    }

    void theEndIsToldWhenItsReportIsThrough_data()
    {
        QTest::addColumn<LoopbackResponse>("answer");
        addRow("received", LoopbackResponse::page({}));
        addRow("refused", LoopbackResponse::error(500));
        addRow("a redirect, which is not followed", LoopbackResponse::redirect(302, "/elsewhere"));
    }

    void theEndIsToldWhenItsReportIsThrough()
    {
        QFETCH(LoopbackResponse, answer);
        m_collector->route("/collect"_s, answer);
        AppTracker tracker; // with a manager for each post
        tracker.allow(clientId);
        QSignalSpy quitTracked(&tracker, &AppTracker::quitTracked);
        tracker.trackStart();
        QTRY_COMPARE(m_collector->requests().size(), 1);
        tracker.trackQuit();
        QTRY_COMPARE(quitTracked.size(), 1);
        QCOMPARE(m_collector->requests().size(), 2);
        QTRY_VERIFY(tracker.findChildren<QNetworkAccessManager *>().isEmpty());
    }

    void aNoGivesUpWhatIsOnItsWay()
    {
        LoopbackResponse never;
        never.hang = true;
        m_collector->route("/collect"_s, never);
        AppTracker tracker;
        QVERIFY(AppTracker::isClientId(tracker.allow(clientId.toUpper())));
        QSignalSpy quitTracked(&tracker, &AppTracker::quitTracked);
        tracker.trackQuit();
        QTRY_COMPARE(m_collector->requests().size(), 1);
        QCOMPARE(quitTracked.size(), 0);
        tracker.forbid();
        QTRY_COMPARE(quitTracked.size(), 1);
        QTRY_COMPARE(m_collector->openConnections(), 0);
    }

    void identifiers_data()
    {
        QTest::addColumn<bool>("isValid");
        addRow("0123abcd-89ab-4def-8123-0123456789ab", true);
        addRow("0123ABCD-89ab-4def-8123-0123456789ab", false);
        addRow("0123abcd-89ab-1def-8123-0123456789ab", false);
        addRow("{0123abcd-89ab-4def-8123-0123456789ab}", false);
        addRow("0123abcd-89ab-4def-8123-0123456789ab\n", false);
        addRow("", false);
    }

    void identifiers()
    {
        const QString id = QString::fromLatin1(QTest::currentDataTag());
        QFETCH(bool, isValid);
        AppTracker tracker;
        const QString used = tracker.allow(id);
        QCOMPARE(used == id, isValid);
        QVERIFY(AppTracker::isClientId(used));
        QVERIFY(isValid || tracker.allow(id) != used);
    }

private:
    static void useCollector(const QString &base)
    {
        QSettings().setValue("endpoints/Collector"_s, base);
        reloadEndpoints();
    }

    const TestFolder m_folder{};
    std::unique_ptr<LoopbackServer> m_collector;
};

QTEST_GUILESS_MAIN(tst_AppTracker)
#include "tst_apptracker.moc"
