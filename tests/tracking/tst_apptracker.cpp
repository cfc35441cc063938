// SPDX-License-Identifier: MIT
#include "tracking/AppTracker.h"

#include "network/AccessManager.h"
#include "network/Endpoints.h"
#include "support/LoopbackServer.h"
#include "support/TestFolder.h"
#include "support/TestTable.h"

#include <QSettings>
#include <QSignalSpy>

namespace {

const QString clientId = "0123abcd-89ab-4def-8123-0123456789ab"_s;
const QByteArray beginning = "v=1&tid=UA-73051829-04&cid=0123abcd-89ab-4def-8123-0123456789ab&t=event"
                             "&an=Versewell&av=1.5.6";

void waitForSystem(AppTracker *tracker)
{
    tracker->findSystem();
    QTRY_VERIFY(tracker->searchExample({}, {}, {}).contains("X11"_s));
}

} // namespace

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

    void eventsAreSentWhole()
    {
        const QByteArrayList events{"&ec=usage&ea=start&sc=start",
                                    "&ec=usage&ea=quit&sc=end",
                                    "&ec=update&ea=update&el=1.5.5",
                                    "&ec=social&ea=facebook",
                                    "&ec=social&ea=gplus",
                                    "&ec=social&ea=twitter",
                                    "&ec=donate&ea=donate",
                                    "&ec=usage&ea=search&el=Nora",
                                    "&ec=usage&ea=search&el=AC%2BDC%20%26%20%C3%BC%20%2F%2F%20100%2541%20%3D%202",
                                    "&ec=a&ea=start&sc=start&ev=-3&el=l"};
        AppTracker tracker;
        AccessManager manager;
        tracker.setNetworkAccessManager(&manager);
        QCOMPARE(tracker.allow(clientId), clientId);
        tracker.trackEvent({}, "search"_s); // these three say nothing
        tracker.trackEvent("usage"_s, {});
        tracker.trackSearch("  "_s, "title"_s);
        tracker.trackStart();
        tracker.trackQuit();
        tracker.trackUpdate("1.5.5"_s);
        tracker.trackFacebook();
        tracker.trackGooglePlus();
        tracker.trackTwitter();
        tracker.trackDonation();
        tracker.trackSearch("Nora"_s, " "_s);
        tracker.trackSearch(" AC+DC & \xC3\xBC "_s, "100%41 = 2"_s); // what means something in a form
        tracker.trackEvent("a"_s, "start"_s, "l"_s, -3);
        QTRY_COMPARE(m_collector->requests().size(), events.size());
        QByteArrayList received; // in whatever order the connections bring them
        for (const LoopbackRequest &request : m_collector->requests()) {
            QCOMPARE(request.method + ' ' + request.target, QByteArray("POST /collect"));
            QCOMPARE(request.header("Content-Type"), QByteArray("application/x-www-form-urlencoded"));
            QVERIFY(request.header("User-Agent").startsWith("Versewell/1.5.6 (X11; U; Linux "));
            QVERIFY(request.body.startsWith(beginning));
            received.append(request.body.mid(beginning.size()));
        }
        for (const QByteArray &event : events)
            QVERIFY2(received.contains(event), event.constData());
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
    void nobodyHearsOfAnything()
    {
        for (const bool isAllowed : {false, true}) { // any more; and where there is no collector
            if (isAllowed)
                useCollector("http://collector.example"_s);
            AppTracker tracker;
            tracker.allow(clientId);
            waitForSystem(&tracker);
            if (!isAllowed)
                tracker.forbid();
            QSignalSpy quitTracked(&tracker, &AppTracker::quitTracked);
            tracker.trackStart();
            tracker.trackSearch("Nora Vale"_s, "Harbour"_s);
            tracker.trackQuit();
            QCOMPARE(quitTracked.size(), 0);
            QTRY_COMPARE(quitTracked.size(), 1);
            QTest::qWait(50); // what was sent all the same arrives
            QCOMPARE(m_collector->requests().size() + m_collector->mostConnections(), 0);
        }
    }

    void theEndIsToldWhenItsReportIsThrough()
    {
        // The last is not followed.
        for (const LoopbackResponse &answer : {LoopbackResponse::page({}), LoopbackResponse::error(500),
                                               LoopbackResponse::redirect(302, "/elsewhere")}) {
            m_collector->forgetRequests();
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
    }

    void aNoGivesUpWhatIsOnItsWay()
    {
        m_collector->route("/collect"_s, LoopbackResponse::hanging());
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

    void anIdentifierThatIsNoneIsReplaced()
    {
        AppTracker tracker;
        for (const char *other :
             {"0123ABCD-89ab-4def-8123-0123456789ab", "0123abcd-89ab-1def-8123-0123456789ab",
              "{0123abcd-89ab-4def-8123-0123456789ab}", "0123abcd-89ab-4def-8123-0123456789ab\n", ""}) {
            const QString used = tracker.allow(QLatin1String(other));
            QVERIFY2(AppTracker::isClientId(used) && used != QLatin1String(other), other);
            QVERIFY2(tracker.allow(QLatin1String(other)) != used, other);
        }
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
