// SPDX-License-Identifier: MIT
#include "ui/SettingsDialog.h"

#include "network/Endpoints.h"
#include "settings/Settings.h"
#include "support/LoopbackServer.h"
#include "ui/LanguageNames.h"

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMetaProperty>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

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
    void initTestCase();
    void init();
    void cleanup();
    void whatIsTypedIsStored();
    void cancelStoresNothing();
    void oddValuesAreShownAsFarAsPossible();
    void aChangeOfLanguageCallsForARestart();
    void languagesAreNamedByThemselves_data();
    void languagesAreNamedByThemselves();
    void sitesAreMovedAndSwitched();
    void sitesAreDragged();
    void ordersAreReadAndCompleted_data();
    void ordersAreReadAndCompleted();
    void proxyFieldsFollowTheirSwitches();
    void theProxyIsTestedAfterTheLastKey();
    void everyControlHasAName();

private:
    template<typename Widget>
    Widget *find(const char *name) const
    {
        return m_dialog->findChild<Widget *>(QLatin1String(name));
    }
    void open();
    void type(const char *name, const QString &text) const;
    void press(const char *name) const;
    void finish(QDialogButtonBox::StandardButton button) const;
    void showTab(int index) const { find<QTabWidget>("tabWidget")->setCurrentIndex(index); }
    // "LyricsFreak, Genius off, ..."
    QString sites() const;

    QTemporaryDir m_settingsFolder;
    std::unique_ptr<LoopbackServer> m_server; // plays the proxy
    std::unique_ptr<Settings> m_settings;
    std::unique_ptr<SettingsDialog> m_dialog;
};

void tst_SettingsDialog::initTestCase()
{
    QCoreApplication::setOrganizationName(QStringLiteral("VersewellTest"));
    QCoreApplication::setApplicationName(QStringLiteral("SettingsDialog"));
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settingsFolder.path());
    qApp->setProperty("languageList", QStringList{QStringLiteral("en"), QStringLiteral("de")});
}

void tst_SettingsDialog::init()
{
    m_server = std::make_unique<LoopbackServer>();
    m_server->routeOthers([](const LoopbackRequest &) {
        LoopbackResponse slow = LoopbackResponse::page("hello");
        slow.delay = std::chrono::milliseconds(300);
        return slow;
    });
    m_settings = std::make_unique<Settings>();
    m_settings->setProvidersOrder(
        QStringLiteral("LyricsFreak;;Genius::0;;Megalyrics;;AZLyrics;;DarkLyrics;;MusixMatch"));
}

void tst_SettingsDialog::cleanup()
{
    m_dialog.reset();
}

void tst_SettingsDialog::open()
{
    m_dialog = std::make_unique<SettingsDialog>(m_settings.get(), nullptr);
    m_dialog->open();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
}

void tst_SettingsDialog::type(const char *name, const QString &text) const
{
    auto *field = find<QWidget>(name);
    QVERIFY(field->isVisible() && field->isEnabled());
    field->setFocus();
    if (!qobject_cast<QComboBox *>(field)) // which would search for that key too
        QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(field, text);
}

void tst_SettingsDialog::press(const char *name) const
{
    QTest::keyClick(find<QWidget>(name), Qt::Key_Space);
}

void tst_SettingsDialog::finish(QDialogButtonBox::StandardButton button) const
{
    QTest::mouseClick(find<QDialogButtonBox>("buttonBox")->button(button), Qt::LeftButton);
    QVERIFY(!m_dialog->isVisible());
}

QString tst_SettingsDialog::sites() const
{
    QStringList names;
    const auto *list = find<QListWidget>("orderList");
    for (int row = 0; row < list->count(); ++row)
        names.append(list->item(row)->text() +
                     QLatin1String(list->item(row)->checkState() == Qt::Checked ? "" : " off"));
    return names.join(QLatin1String(", "));
}

void tst_SettingsDialog::whatIsTypedIsStored()
{
    open();
    QSignalSpy changes(m_dialog.get(), &SettingsDialog::contentChanged);
    QSignalSpy proxyChanges(m_settings.get(), &Settings::proxyChanged);
    type("languageComboBox", QStringLiteral("D"));
    type("seachProviderComboBox", QStringLiteral("Yand"));
    type("lyrcisFontSizeSpinBox", QStringLiteral("33"));
    for (const char *name : {"prependNewLineCheckBox", "saveFilesListCheckBox", "generateLyricsFileAuto"})
        press(name);
    showTab(1);
    type("proxyTypeComboBox", QStringLiteral("H"));
    type("proxyAddressLineEdit", QStringLiteral(" proxy.example "));
    type("proxyPortLineEdit", QStringLiteral("8,0x80"));
    press("proxyAuthenticationcheckBox");
    type("proxyUsernameLineEdit", QStringLiteral("nora"));
    type("proxyPasswordLineEdit", QStringLiteral(" p:%41;@ "));
    QCOMPARE(proxyChanges.size(), 0);
    QVERIFY(changes.size() > 9);
    finish(QDialogButtonBox::Ok);
    Settings expected;
    expected.setLanguage(QStringLiteral("de"));
    expected.setSearchProvider(QStringLiteral("Yandex"));
    expected.setLyricsFontSize(33);
    expected.setPrependNewLine(true);
    expected.setSaveFilesList(true);
    expected.setGenerateLyricsFileAuto(true);
    expected.setProxyType(2);
    expected.setProxyAddress(QStringLiteral("proxy.example"));
    expected.setProxyPort(8080);
    expected.setProxyAuthentication(true);
    expected.setProxyUsername(QStringLiteral("nora"));
    expected.setProxyPassword(QStringLiteral(" p:%41;@ "));
    expected.setProvidersOrder(QStringLiteral("LyricsFreak;;Genius::0;;Megalyrics;;AZLyrics;;DarkLyrics;;MusixMatch"));
    QCOMPARE(valuesOf(*m_settings), valuesOf(expected));
    QCOMPARE(proxyChanges.size(), 6);
}

void tst_SettingsDialog::cancelStoresNothing()
{
    const QVariantMap before = valuesOf(*m_settings);
    open();
    type("lyrcisFontSizeSpinBox", QStringLiteral("33"));
    showTab(1);
    type("proxyTypeComboBox", QStringLiteral("S"));
    type("proxyAddressLineEdit", QStringLiteral("proxy.example"));
    showTab(2);
    press("btnDown");
    finish(QDialogButtonBox::Cancel);
    QCOMPARE(valuesOf(*m_settings), before);
}

void tst_SettingsDialog::oddValuesAreShownAsFarAsPossible()
{
    m_settings->setSearchProvider(QStringLiteral("Elsewhere"));
    m_settings->setLanguage(QStringLiteral("xx"));
    m_settings->setProxyType(7);
    open();
    QCOMPARE(find<QComboBox>("seachProviderComboBox")->currentText(), QStringLiteral("Google"));
    QCOMPARE(find<QComboBox>("languageComboBox")->currentText(), QStringLiteral("Automatic"));
    QCOMPARE(find<QComboBox>("proxyTypeComboBox")->currentText(), QStringLiteral("None"));
}

void tst_SettingsDialog::aChangeOfLanguageCallsForARestart()
{
    m_settings->setLanguage(QStringLiteral("de"));
    open();
    QVERIFY(!find<QLabel>("icoExclamation")->isVisible());
    type("languageComboBox", QStringLiteral("E"));
    type("languageComboBox", QStringLiteral("D"));
    QVERIFY(find<QLabel>("icoExclamation")->isVisible());
}

void tst_SettingsDialog::languagesAreNamedByThemselves_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("de") << "Deutsch";
    QTest::newRow("en") << "English";
    QTest::newRow("es") << "Español";
    QTest::newRow("ru") << QStringLiteral("Русский");
    QTest::newRow("pt") << QStringLiteral("Português");
    QTest::newRow("pt_BR") << QStringLiteral("Português (Brasil)");
    QTest::newRow("pt_PT") << QStringLiteral("Português (Portugal)");
    QTest::newRow("xx") << "xx";
}

void tst_SettingsDialog::languagesAreNamedByThemselves()
{
    QTEST(languageName(QString::fromLatin1(QTest::currentDataTag())), "name");
}

void tst_SettingsDialog::sitesAreMovedAndSwitched()
{
    open();
    showTab(2);
    auto *list = find<QListWidget>("orderList");
    auto *warning = find<QLabel>("lblOrderWarning");
    QSignalSpy changes(m_dialog.get(), &SettingsDialog::contentChanged);
    QVERIFY(!find<QPushButton>("btnUp")->isEnabled() && find<QPushButton>("btnDown")->isEnabled());
    QCOMPARE(find<QPushButton>("btnEnable")->text(), QStringLiteral("Disable"));
    press("btnDown");
    press("btnDown");
    QCOMPARE(list->currentRow(), 2);
    list->setCurrentRow(5);
    QVERIFY(find<QPushButton>("btnUp")->isEnabled() && !find<QPushButton>("btnDown")->isEnabled());
    list->setCurrentRow(2);
    press("btnUp");
    press("btnEnable");
    QCOMPARE(sites(), QStringLiteral("Genius off, LyricsFreak off, Megalyrics, AZLyrics, DarkLyrics, MusixMatch"));
    QCOMPARE(find<QPushButton>("btnEnable")->text(), QStringLiteral("Enable"));
    QCOMPARE(changes.size(), 4);
    QCOMPARE(warning->text(), QString());
    for (int row = 2; row < 6; ++row) {
        QCOMPARE(warning->text(), QString());
        list->setCurrentRow(row);
        QTest::keyClick(list, Qt::Key_Space);
    }
    QCOMPARE(warning->text(), QStringLiteral("Warning!!! You have disabled all sources."));
    QCOMPARE(warning->styleSheet(), QStringLiteral("color: red"));
    press("btnEnable");
    QCOMPARE(warning->text(), QString());
    find<QPushButton>("btnUp")->setFocus();
    list->setCurrentRow(1);
    press("btnUp");
    QVERIFY(list->hasFocus()); // not the button that undoes it
    press("btnDown");
    list->setCurrentRow(-1);
    for (const char *name : {"btnUp", "btnDown", "btnEnable"})
        QVERIFY(!find<QPushButton>(name)->isEnabled());
    press("btnUp");
    finish(QDialogButtonBox::Ok);
    QCOMPARE(m_settings->providersOrder(),
             QStringLiteral("Genius::0;;LyricsFreak::0;;Megalyrics::0;;AZLyrics::0;;DarkLyrics::0;;MusixMatch"));
}

void tst_SettingsDialog::sitesAreDragged()
{
    if (QGuiApplication::platformName() == QLatin1String("offscreen")) {
        // QSKIP leaves an argument of a macro out, which clang minds.
        QTest::qSkip("nothing can be dragged here; a test entry of its own does it on a screen", __FILE__, __LINE__);
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
    QTRY_COMPARE(sites(), QStringLiteral("Genius off, Megalyrics, AZLyrics, LyricsFreak, DarkLyrics, MusixMatch"));
    QVERIFY(!changes.isEmpty());
    QCOMPARE(list->count(), 6);
}

void tst_SettingsDialog::ordersAreReadAndCompleted_data()
{
    QTest::addColumn<QString>("order");
    QTest::addColumn<QString>("shown");
    QTest::newRow("empty") << QString() << "LyricsFreak, Genius, Megalyrics, AZLyrics, DarkLyrics, MusixMatch";
    QTest::newRow("sites that are not mentioned")
        << "Third::0;;Genius"
        << "Third off, Genius, LyricsFreak, Megalyrics, AZLyrics, DarkLyrics, MusixMatch";
    QTest::newRow("spelled otherwise")
        << " lyricsfreak ::0;;;;Third::1"
        << "lyricsfreak off, Third, Genius, Megalyrics, AZLyrics, DarkLyrics, MusixMatch";
}

void tst_SettingsDialog::ordersAreReadAndCompleted()
{
    QFETCH(QString, order);
    m_settings->setProvidersOrder(order);
    open();
    QTEST(sites(), "shown");
}

void tst_SettingsDialog::proxyFieldsFollowTheirSwitches()
{
    open();
    showTab(1);
    QVERIFY(!find<QFrame>("proxyFrame")->isEnabled());
    type("proxyTypeComboBox", QStringLiteral("S"));
    QVERIFY(find<QFrame>("proxyFrame")->isEnabled());
    QVERIFY(!find<QLineEdit>("proxyPasswordLineEdit")->isEnabled());
    press("proxyAuthenticationcheckBox");
    QVERIFY(find<QLineEdit>("proxyUsernameLineEdit")->isEnabled());
    QVERIFY(find<QLineEdit>("proxyPasswordLineEdit")->isEnabled());
}

void tst_SettingsDialog::theProxyIsTestedAfterTheLastKey()
{
    open();
    showTab(1);
    auto *timer = find<QTimer>("proxyTestTimer");
    const auto shows = [this](const char *name) {
        return picture(find<QLabel>("proxyTestStatusLabel")->pixmap(Qt::ReturnByValue)) ==
               picture(QPixmap(QStringLiteral(":/img/proxy_%1.png").arg(QLatin1String(name))));
    };
    QCOMPARE(timer->interval(), 3000);
    timer->setInterval(200);
    const auto words = [this] {
        return find<QLabel>("proxyTestTextLabel")->text();
    };
    QVERIFY(shows("idle"));
    QCOMPARE(words(), QStringLiteral("No proxy is used."));
    const int width = m_dialog->minimumSizeHint().width();
    type("proxyTypeComboBox", QStringLiteral("H"));
    QCOMPARE(words(), QStringLiteral("No address: no proxy is used."));
    QCOMPARE(m_dialog->minimumSizeHint().width(), width);
    type("proxyAddressLineEdit", QStringLiteral("127.0.0.1"));
    type("proxyPortLineEdit", QString::number(QUrl(m_server->base()).port()));
    QVERIFY(shows("idle"));
    QCOMPARE(words(), QStringLiteral("Not tested yet."));
    QTRY_VERIFY(shows("working"));
    QTRY_VERIFY(shows("success"));
    QCOMPARE(words(), QStringLiteral("The proxy works."));
    QCOMPARE(find<QLabel>("proxyTestStatusLabel")->accessibleName(), words());
    QCOMPARE(m_server->requests().size(), 1);
    QCOMPARE(m_server->requests().first().target, endpointUrl(Endpoint::ProxyTest, QStringLiteral("/")).toEncoded());
    m_server->routeOthers([](const LoopbackRequest &) { return LoopbackResponse::error(502); });
    type("proxyPortLineEdit", QString::number(QUrl(m_server->base()).port()));
    QVERIFY(shows("idle"));
    QTRY_VERIFY(shows("error"));
    type("proxyTypeComboBox", QStringLiteral("N"));
    QVERIFY(shows("idle") && !timer->isActive());
    type("proxyTypeComboBox", QStringLiteral("H"));
    finish(QDialogButtonBox::Cancel);
    QVERIFY(!timer->isActive());
}

void tst_SettingsDialog::everyControlHasAName()
{
    open();
    for (const QWidget *widget : m_dialog->findChildren<QWidget *>()) {
        const bool isControl =
            widget->focusPolicy() & Qt::TabFocus && !widget->objectName().startsWith(QLatin1String("qt_"));
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(const_cast<QWidget *>(widget));
        if (isControl && widget->objectName() != QLatin1String("tabWidget"))
            QVERIFY2(!accessible->text(QAccessible::Name).isEmpty(), qPrintable(widget->objectName()));
    }
}

QTEST_MAIN(tst_SettingsDialog)
#include "tst_settingsdialog.moc"
