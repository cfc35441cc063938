// SPDX-License-Identifier: MIT
#include "ui/SettingsDialog.h"

#include "network/Endpoints.h"
#include "settings/Settings.h"
#include "support/LoopbackServer.h"
#include "support/TestFolder.h"
#include "support/TestTable.h"
#include "tracking/AppTracker.h"
#include "ui/LanguageNames.h"
#include "ui/UsageConsent.h"

#include <QMetaProperty>
#include <QSettings>
#include <QSignalSpy>
#include <QTimer>
#include <QtWidgets>

namespace {

QVariantMap valuesOf(const Settings &settings)
{
    QVariantMap values;
    const QMetaObject *meta = settings.metaObject();
    for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i)
        values.insert(QString::fromLatin1(meta->property(i).name()), meta->property(i).read(&settings));
    return values;
}

QByteArray picture(const QPixmap &pixmap)
{
    const QImage image = pixmap.toImage();
    return {reinterpret_cast<const char *>(image.constBits()), int(image.sizeInBytes())};
}

} // namespace

class tst_SettingsDialog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_settingsFolder.holdSettings();
        qunsetenv("DO_NOT_TRACK");
        qApp->setProperty("languageList", QStringList{"en"_s, "de"_s});
    }

    void init()
    {
        QSettings().clear();
        m_server = std::make_unique<LoopbackServer>();
        m_server->routeOthers([](const LoopbackRequest &) {
            LoopbackResponse slow = LoopbackResponse::page("hello");
            slow.delay = std::chrono::milliseconds(300);
            return slow;
        });
        m_settings = std::make_unique<Settings>();
        m_settings->setProvidersOrder("LyricsFreak;;Genius::0;;Megalyrics;;AZLyrics;;DarkLyrics;;MusixMatch"_s);
    }

    void cleanup() { m_dialog.reset(); }

    void whatIsTypedIsStored()
    {
        open();
        QSignalSpy changes(m_dialog.get(), &SettingsDialog::contentChanged);
        QSignalSpy proxyChanges(m_settings.get(), &Settings::proxyChanged);
        type("languageComboBox", "D"_s);
        type("seachProviderComboBox", "Yand"_s);
        type("lyrcisFontSizeSpinBox", "33"_s);
        for (const char *name : {"prependNewLineCheckBox", "saveFilesListCheckBox", "generateLyricsFileAuto"})
            press(name);
        showTab(1);
        type("proxyTypeComboBox", "H"_s);
        type("proxyAddressLineEdit", " proxy.example "_s);
        type("proxyPortLineEdit", "8,0x80"_s);
        press("proxyAuthenticationcheckBox");
        type("proxyUsernameLineEdit", "nora"_s);
        type("proxyPasswordLineEdit", " p:%41;@ "_s);
        QCOMPARE(proxyChanges.size(), 0);
        QVERIFY(changes.size() > 9);
        finish(QDialogButtonBox::Ok);
        Settings expected;
        expected.setLanguage("de"_s);
        expected.setSearchProvider("Yandex"_s);
        expected.setLyricsFontSize(33);
        expected.setPrependNewLine(true);
        expected.setSaveFilesList(true);
        expected.setGenerateLyricsFileAuto(true);
        expected.setProxyType(2);
        expected.setProxyAddress("proxy.example"_s);
        expected.setProxyPort(8080);
        expected.setProxyAuthentication(true);
        expected.setProxyUsername("nora"_s);
        expected.setProxyPassword(" p:%41;@ "_s);
        expected.setProvidersOrder("LyricsFreak;;Genius::0;;Megalyrics;;AZLyrics;;DarkLyrics;;MusixMatch"_s);
        QCOMPARE(valuesOf(*m_settings), valuesOf(expected));
        QCOMPARE(proxyChanges.size(), 6);
    }

    void cancelStoresNothing()
    {
        const QVariantMap before = valuesOf(*m_settings);
        open();
        type("lyrcisFontSizeSpinBox", "33"_s);
        showTab(1);
        type("proxyTypeComboBox", "S"_s);
        type("proxyAddressLineEdit", "proxy.example"_s);
        showTab(2);
        press("btnDown");
        finish(QDialogButtonBox::Cancel);
        QCOMPARE(valuesOf(*m_settings), before);
    }

    void oddValuesAreShownAsFarAsPossible()
    {
        m_settings->setSearchProvider("Elsewhere"_s);
        m_settings->setLanguage("xx"_s);
        m_settings->setProxyType(7);
        open();
        QCOMPARE(find<QComboBox>("seachProviderComboBox")->currentText(), "Google"_s);
        QCOMPARE(find<QComboBox>("languageComboBox")->currentText(), "Automatic"_s);
        QCOMPARE(find<QComboBox>("proxyTypeComboBox")->currentText(), "None"_s);
        QVERIFY(!find<QLabel>("icoExclamation")->isVisible());
        type("languageComboBox", "E"_s);
        type("languageComboBox", "A"_s);
        QVERIFY(find<QLabel>("icoExclamation")->isVisible()); // also when the first one is chosen again
    }

    void languagesAreNamedByThemselves()
    {
        QCOMPARE(languageName("ru"_s), "Русский"_s);
        QCOMPARE(languageName("pt_BR"_s), "Português (Brasil)"_s);
        QCOMPARE(languageName("xx"_s), "xx"_s);
    }

    void sitesAreMovedAndSwitched()
    {
        open();
        showTab(2);
        auto *list = find<QListWidget>("orderList");
        const auto *warning = find<QLabel>("lblOrderWarning");
        QVERIFY(!isEnabled("btnUp") && isEnabled("btnDown"));
        press("btnDown");
        press("btnDown");
        QCOMPARE(list->currentRow(), 2);
        press("btnUp");
        press("btnEnable");
        QCOMPARE(sites(), "Genius off, LyricsFreak off, Megalyrics, AZLyrics, DarkLyrics, MusixMatch"_s);
        for (int row = 2; row < 6; ++row) {
            QCOMPARE(warning->text(), QString());
            list->setCurrentRow(row);
            QTest::keyClick(list, Qt::Key_Space);
        }
        QCOMPARE(warning->text(), "Warning!!! You have disabled all sources."_s);
        QVERIFY(isEnabled("btnUp") && !isEnabled("btnDown"));
        press("btnEnable");
        QCOMPARE(warning->text(), QString());
        find<QPushButton>("btnUp")->setFocus();
        list->setCurrentRow(1);
        press("btnUp");
        QVERIFY(list->hasFocus()); // not the button that undoes it
        list->setCurrentRow(-1);
        QVERIFY(!isEnabled("btnUp") && !isEnabled("btnDown") && !isEnabled("btnEnable"));
        finish(QDialogButtonBox::Ok);
        QCOMPARE(m_settings->providersOrder(),
                 "LyricsFreak::0;;Genius::0;;Megalyrics::0;;AZLyrics::0;;DarkLyrics::0;;MusixMatch"_s);
    }

    void sitesAreDragged()
    {
        if (QGuiApplication::platformName() == QLatin1String("offscreen")) {
            // QSKIP leaves an argument of a macro out, which clang minds.
            QTest::qSkip("nothing can be dragged here; a test entry of its own does it on a screen", __FILE__,
                         __LINE__);
            return;
        }
        open();
        showTab(2);
        auto *list = find<QListWidget>("orderList");
        QSignalSpy changes(m_dialog.get(), &SettingsDialog::contentChanged);
        QWindow *window = m_dialog->windowHandle();
        const auto inWindow = [&](const QPoint &point) {
            return list->viewport()->mapTo(m_dialog.get(), point);
        };
        const QPoint from = list->visualItemRect(list->item(0)).center();
        const QRect last = list->visualItemRect(list->item(2));
        const QPoint to = last.center() + QPoint(0, last.height());
        // Dragging has an event loop of its own.
        QTimer::singleShot(100, window, [&] {
            QTest::mouseMove(window, inWindow(to - QPoint(0, 5)));
            QTest::mouseMove(window, inWindow(to));
            QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, inWindow(to));
        });
        QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, inWindow(from));
        for (int y = 5; y < 40; y += 5)
            QTest::mouseMove(window, inWindow(from + QPoint(0, y)));
        QTRY_COMPARE(sites(), "Genius off, Megalyrics, AZLyrics, LyricsFreak, DarkLyrics, MusixMatch"_s);
        QVERIFY(!changes.isEmpty());
        QCOMPARE(list->count(), 6);
    }

    void ordersAreReadAndCompleted_data()
    {
        addTextColumns("order", "shown");
        addRow("empty", "", "LyricsFreak, Genius, Megalyrics, AZLyrics, DarkLyrics, MusixMatch");
        addRow("sites that are not mentioned", "Third::0;;Genius",
               "Third off, Genius, LyricsFreak, Megalyrics, AZLyrics, DarkLyrics, MusixMatch");
        addRow("spelled otherwise", " lyricsfreak ::0;;;;Third::1",
               "lyricsfreak off, Third, Genius, Megalyrics, AZLyrics, DarkLyrics, MusixMatch");
    }

    void ordersAreReadAndCompleted()
    {
        QFETCH(QString, order);
        m_settings->setProvidersOrder(order);
        open();
        QTEST(sites(), "shown");
    }

    void theProxyIsTestedAfterTheLastKey()
    {
        open();
        showTab(1);
        auto *timer = find<QTimer>("proxyTestTimer");
        const auto shows = [this](const char *name) {
            return picture(find<QLabel>("proxyTestStatusLabel")->pixmap(Qt::ReturnByValue)) ==
                   picture(QPixmap(":/img/proxy_%1.png"_s.arg(QLatin1String(name))));
        };
        QCOMPARE(timer->interval(), 3000);
        timer->setInterval(200);
        QVERIFY(shows("idle") && !isEnabled("proxyFrame"));
        const int width = m_dialog->minimumSizeHint().width();
        type("proxyTypeComboBox", "H"_s);
        QVERIFY(isEnabled("proxyFrame") && !isEnabled("proxyPasswordLineEdit"));
        QCOMPARE(m_dialog->minimumSizeHint().width(), width);
        type("proxyAddressLineEdit", "127.0.0.1"_s);
        type("proxyPortLineEdit", QString::number(QUrl(m_server->base()).port()));
        QVERIFY(shows("idle"));
        QTRY_VERIFY(shows("working"));
        QTRY_VERIFY(shows("success"));
        QCOMPARE(find<QLabel>("proxyTestStatusLabel")->accessibleName(), "The proxy works."_s);
        QCOMPARE(m_server->requests().size(), 1);
        QCOMPARE(m_server->requests().first().target, endpointUrl(Endpoint::ProxyTest, "/"_s).toEncoded());
        m_server->routeOthers([](const LoopbackRequest &) { return LoopbackResponse::error(502); });
        type("proxyPortLineEdit", QString::number(QUrl(m_server->base()).port()));
        QVERIFY(shows("idle"));
        QTRY_VERIFY(shows("error"));
        type("proxyTypeComboBox", "N"_s);
        QVERIFY(shows("idle") && !timer->isActive());
        type("proxyTypeComboBox", "H"_s);
        finish(QDialogButtonBox::Cancel);
        QVERIFY(!timer->isActive());
    }

    void whatTheProgramSendsByItselfIsUpToTheUser_data()
    {
        addTextColumns("stored", "period", "clicks", "answer", "periodAfter");
        QTest::addColumn<bool>("isShown");
        addRow("not asked yet, and nothing is clicked", "", "", "", "", "", true);
        addRow("not asked yet, and clicked twice", "", "600", "usage usage", "", "600", true);
        addRow("a yes", "", "0", "usage", "true", "0", true);
        addRow("a no, and checks on", "true", "0", "usage updates", "false", "1440", true);
        addRow("checks off", "false", "600", "updates", "false", "0", true);
        addRow("nobody to send to", "", "", "", "", "", false);
    }

    void whatTheProgramSendsByItselfIsUpToTheUser()
    {
        QFETCH(QString, stored);
        QFETCH(QString, period);
        QFETCH(QString, clicks);
        QFETCH(bool, isShown);
        const QString domain = isShown ? ".test"_s : ".example"_s;
        QSettings().setValue("endpoints/Collector"_s, "http://collector"_s + domain);
        QSettings().setValue("endpoints/Maker"_s, "http://maker"_s + domain);
        reloadEndpoints();
        if (!stored.isEmpty())
            QSettings().setValue("usageStatistics"_s, stored);
        if (!period.isEmpty())
            QSettings().setValue("updater/period"_s, period);
        AppTracker tracker;
        UsageConsent consent(&tracker);
        consent.load();
        open(&consent);
        QCOMPARE(find<QCheckBox>("usageStatisticsCheckBox")->isVisible(), isShown);
        QCOMPARE(find<QCheckBox>("checkUpdatesCheckBox")->isVisible(), isShown);
        QCOMPARE(find<QCheckBox>("usageStatisticsCheckBox")->isChecked(), stored == "true"_s);
        for (const QString &click : clicks.split(QLatin1Char(' '), Qt::SkipEmptyParts))
            press(click == "usage"_s ? "usageStatisticsCheckBox" : "checkUpdatesCheckBox");
        QCOMPARE(QSettings().value("usageStatistics"_s).toString(), stored);
        finish(QDialogButtonBox::Ok);
        QTEST(QSettings().value("usageStatistics"_s).toString(), "answer");
        QTEST(QSettings().value("updater/period"_s).toString(), "periodAfter");
        QCOMPARE(consent.isPending(), isShown && !QSettings().contains("usageStatistics"_s));
        m_dialog.reset(); // before the consent
    }

private:
    template<typename Widget>
    Widget *find(const char *name) const
    {
        return m_dialog->findChild<Widget *>(QLatin1String(name));
    }
    bool isEnabled(const char *name) const { return find<QWidget>(name)->isEnabled(); }

    void open(UsageConsent *consent = nullptr)
    {
        m_dialog = std::make_unique<SettingsDialog>(m_settings.get(), consent);
        m_dialog->open();
        QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    }

    void type(const char *name, const QString &text) const
    {
        auto *field = find<QWidget>(name);
        QVERIFY(field->isVisible() && field->isEnabled());
        field->setFocus();
        if (!qobject_cast<QComboBox *>(field)) // which would search for that key too
            QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(field, text);
    }

    void press(const char *name) const { QTest::keyClick(find<QWidget>(name), Qt::Key_Space); }

    void finish(QDialogButtonBox::StandardButton button) const
    {
        QTest::mouseClick(find<QDialogButtonBox>("buttonBox")->button(button), Qt::LeftButton);
        QVERIFY(!m_dialog->isVisible());
    }

    void showTab(int index) const { find<QTabWidget>("tabWidget")->setCurrentIndex(index); }

    // "LyricsFreak, Genius off, ..."
    QString sites() const
    {
        QStringList names;
        for (const auto *site : find<QListWidget>("orderList")->findItems({}, Qt::MatchContains))
            names.append(site->text() + QLatin1String(site->checkState() == Qt::Checked ? "" : " off"));
        return names.join(QLatin1String(", "));
    }

    const TestFolder m_settingsFolder{};
    std::unique_ptr<LoopbackServer> m_server; // plays the proxy
    std::unique_ptr<Settings> m_settings;
    std::unique_ptr<SettingsDialog> m_dialog;
};

QTEST_MAIN(tst_SettingsDialog)
#include "tst_settingsdialog.moc"
