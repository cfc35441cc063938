// SPDX-License-Identifier: MIT
#include "app/Stage.h"

#include "support/LoopbackServer.h"
#include "support/TestTable.h"
#include "ui/MainWindow.h"

#include <QAction>
#include <QPlainTextEdit>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWidget>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTimer>

#include <algorithm>
#include <iterator>

namespace {

const QString clientId = QStringLiteral("0123abcd-89ab-4def-8123-0123456789ab");

// Where events go to as long as there is no server.
const QVariantMap someCollector{{QStringLiteral("endpoints/Collector"), QStringLiteral("http://127.0.0.1:9")}};

// "usage start", "usage search Nora Vale // Harbour"...
QStringList eventsOf(const LoopbackServer &server)
{
    QStringList list;
    for (const LoopbackRequest &request : server.requests()) {
        const QUrlQuery form(QString::fromLatin1(request.body));
        QStringList words;
        for (const QString &field : {"ec"_s, "ea"_s, "el"_s})
            words.append(form.queryItemValue(field, QUrl::FullyDecoded));
        list.append(words.join(QLatin1Char(' ')).trimmed());
    }
    return list;
}

// Takes the place of the collector of the application that is there.
class Collector : public LoopbackServer
{
public:
    Collector()
    {
        route("/collect"_s, LoopbackResponse::page({}));
        QSettings().setValue("endpoints/Collector"_s, base());
        reloadEndpoints();
    }

    [[nodiscard]] QStringList events() const { return eventsOf(*this); }
};

} // namespace

class tst_UsageEvents : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qputenv("QMLSCENE_DEVICE", "softwarecontext"); }
    void init() { qunsetenv("DO_NOT_TRACK"); }

    void theAnswerDecides_data()
    {
        QTest::addColumn<QVariantMap>("stored");
        QTest::addColumn<QByteArray>("doNotTrack");
        QTest::addColumn<bool>("isAsked");
        QTest::addColumn<bool>("isSent");
        const auto answered = [](bool yes, const QString &id) {
            return QVariantMap{{"usageStatistics"_s, yes}, {"tracker/clientId"_s, id}};
        };
        addRow("a yes", answered(true, clientId), QByteArray(), false, true);
        addRow("a yes with an identifier that is none", answered(true, "x"_s), QByteArray("0"), false, true);
        addRow("not asked yet", QVariantMap(), QByteArray(), true, false);
        addRow("a no", answered(false, clientId), QByteArray(), false, false);
        addRow("a yes, and the environment says no", answered(true, clientId), QByteArray("1"), false, false);
        addRow("not asked yet, and the environment says no", QVariantMap(), QByteArray("1"), false, false);
    }

    void theAnswerDecides()
    {
        QFETCH(QVariantMap, stored);
        QFETCH(QByteArray, doNotTrack);
        QFETCH(bool, isSent);
        qputenv("DO_NOT_TRACK", doNotTrack);
        QVariantMap settings = someCollector;
        settings.insert("FirstStart"_s, "1.5.5"_s);
        settings.insert(stored);
        Stage app(settings);
        const Collector collector;
        QTEST(app->usageConsent()->isPending(), "isAsked");
        app->noteStart();
        app->trackUsage(" Nora Vale "_s, " Harbour "_s);
        app->reportOpenGLError();
        QSignalSpy known(app->tracker(), &AppTracker::systemKnown);
        app->tracker()->findSystem();
        QVERIFY(known.wait());
        QCOMPARE(collector.mostConnections(), 0); // not before the window is there
        app->tracker()->release();
        QSignalSpy ended(app->tracker(), &AppTracker::quitTracked);
        QTRY_VERIFY(!isSent || collector.requests().size() == 4);
        app->tracker()->trackQuit();
        QTRY_COMPARE(ended.size(), 1);
        // Each has a connection of its own, so that any of the first four may arrive first.
        QStringList events = collector.events();
        if (isSent)
            std::sort(events.begin(), std::prev(events.end()));
        const QStringList all{"error opengl"_s, "update update 1.5.5"_s, "usage search Nora Vale // Harbour"_s,
                              "usage start"_s, "usage quit"_s};
        QCOMPARE(events, isSent ? all : QStringList());
        QVERIFY(isSent || collector.mostConnections() == 0);
        const QString keptId = QSettings().value("tracker/clientId"_s).toString();
        QCOMPARE(AppTracker::isClientId(keptId), isSent);
        QVERIFY(!isSent || stored.value("tracker/clientId"_s) != clientId || keptId == clientId);
    }

    void nobodyIsAskedWithoutACollector()
    {
        Stage app;
        app->usageConsent()->answer(true);
        QVERIFY(!app->usageConsent()->isPending());
        QVERIFY(!QSettings().contains("usageStatistics"_s) && !QSettings().contains("tracker/clientId"_s));
    }

    // One application for all that follow: Qt Quick does not outlive the first one that it is used in.
    void theQuestionIsAnsweredInTheWindow()
    {
        Stage &app = stageWithWindow();
        app->noteStart();
        m_window->resize(640, 400);
        QSignalSpy frames(m_window.get(), &MainWindow::firstFrameShown);
        QCoreApplication::processEvents();
        QVERIFY(frames.isEmpty());
        m_window->show();
        QTRY_COMPARE(frames.size(), 1);
        app->tracker()->release();
        const QPointer<QQuickItem> bar = item("consentBar");
        QVERIFY(bar->isVisible());
        for (const char *name : {"consentExample", "consentYes", "consentNo"})
            QVERIFY2(QRectF(scene()->rect()).contains(item(name)->mapRectToScene(item(name)->boundingRect())), name);
        QCOMPARE(item("consentYes")->size(), item("consentNo")->size());
        item("consentExample")->forceActiveFocus();
        QTest::keyClick(scene(), Qt::Key_Return);
        const auto example = [this] {
            const auto *text = m_window->findChild<QPlainTextEdit *>("usageExampleText"_s);
            return text ? text->toPlainText() : QString();
        };
        QTRY_VERIFY(example().contains("X11; U; Linux"_s));
        QVERIFY(example().contains("\nel=Nora Vale // Harbour Lights"_s));
        m_window->findChild<QPlainTextEdit *>("usageExampleText"_s)->window()->close();
        QTRY_VERIFY(example().isEmpty());
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        QCOMPARE(m_collector->mostConnections(), 0);

        QTest::keyClick(scene(), Qt::Key_Tab);
        QVERIFY(item("consentYes")->hasActiveFocus());
        QTest::keyClick(scene(), Qt::Key_Space);
        QTRY_VERIFY(!bar);
        const QQuickItem *next = scene()->quickWindow()->activeFocusItem();
        QVERIFY(next && next->isVisible() && !next->objectName().startsWith("consent"_s));
        QCOMPARE(QSettings().value("usageStatistics"_s), QVariant("true"_s));
        app->trackUsage("Nora Vale"_s, {});
        QTRY_COMPARE(m_collector->events(), QStringList("usage search Nora Vale"_s)); // no start
        app->usageConsent()->answer(false);
        app->trackUsage("Nora Vale"_s, {});
        QCOMPARE(QSettings().value("usageStatistics"_s), QVariant("false"_s));
        QVERIFY(!QSettings().contains("tracker/clientId"_s));
        QCOMPARE(m_collector->requests().size(), 1);
    }

    void linksAreReportedThroughTheProxy()
    {
        Stage &app = stageWithWindow();
        app->usageConsent()->answer(true);
        LoopbackServer proxy;
        proxy.routeOthers([](const LoopbackRequest &) { return LoopbackResponse::page({}); });
        app->settings()->setProxyAddress("127.0.0.1"_s);
        app->settings()->setProxyPort(static_cast<quint16>(QUrl(proxy.base()).port()));
        app->settings()->setProxyType(2);
        app->tracker()->release();
        for (const char *link : {"actionFacebook", "actionTwitter", "actionWebsite"})
            m_window->findChild<QAction *>(QLatin1String(link))->trigger();
        const auto events = [&proxy] {
            QStringList sorted = eventsOf(proxy); // each comes by a connection of its own
            sorted.sort();
            return sorted;
        };
        QTRY_COMPARE(events(), QStringList({"social facebook"_s, "social twitter"_s}));
        QCOMPARE(proxy.requests().first().target, m_collector->url("/collect").toEncoded());
        app->settings()->setProxyType(0);
    }

    void theEndWaitsForItsReport_data()
    {
        QTest::addColumn<bool>("isAnswered");
        addRow("that arrives", true);
        addRow("that is never answered", false);
    }

    void theEndWaitsForItsReport()
    {
        QFETCH(bool, isAnswered);
        Stage &app = stageWithWindow();
        app->usageConsent()->answer(true);
        LoopbackResponse answer = LoopbackResponse::page({});
        answer.hang = !isAnswered;
        m_collector->route("/collect"_s, answer);
        m_window->show();
        QSignalSpy told(app->tracker(), &AppTracker::quitTracked);
        bool isHidden = false;
        connect(m_collector.get(), &LoopbackServer::requestReceived, this,
                [this, &isHidden] { isHidden = !m_window->isVisible(); });
        QTimer::singleShot(0, m_window.get(), &QWidget::close);
        QApplication::exec();
        QVERIFY(isHidden);
        QCOMPARE(m_collector->events(), QStringList("usage quit"_s));
        QCOMPARE(told.size(), isAnswered ? 1 : 0);
    }

private:
    // With a new window, and a collector that was told nothing yet.
    Stage &stageWithWindow()
    {
        if (!m_stage)
            m_stage = std::make_unique<Stage>(someCollector);
        m_collector = std::make_unique<Collector>();
        Application &app = **m_stage;
        m_window = std::make_unique<MainWindow>(MainWindow::Parts{app.mainModel(), app.proxyModel(),
                                                                  app.folderScanner(), app.settings(), app.appPalette(),
                                                                  &app, app.tracker(), app.usageConsent()});
        return *m_stage;
    }
    QQuickWidget *scene() const { return m_window->findChild<QQuickWidget *>(); }
    QQuickItem *item(const char *name) const
    {
        return scene()->rootObject()->findChild<QQuickItem *>(QLatin1String(name));
    }

    std::unique_ptr<Stage> m_stage;
    std::unique_ptr<Collector> m_collector;
    std::unique_ptr<MainWindow> m_window;
};

QTEST_APPLESS_MAIN(tst_UsageEvents)
#include "tst_usageevents.moc"
