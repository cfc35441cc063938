// SPDX-License-Identifier: MIT
#include "ui/AboutDialog.h"

#include "network/Endpoints.h"

#include <QAbstractButton>
#include <QDesktopServices>
#include <QLabel>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

class tst_AboutDialog : public QObject
{
    Q_OBJECT

public slots:
    void noteOpenedUrl(const QUrl &url) { m_opened.append(url.toString()); }

private slots:
    void initTestCase();
    void init();
    void cleanupTestCase();
    void theProgramIsNamed();
    void theMakerIsALinkWhereThereIsASite();
    void withoutASiteNothingLeadsThere();

private:
    QTemporaryDir m_settingsFolder;
    QStringList m_opened;
};

void tst_AboutDialog::initTestCase()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Quill & <b>marsh"));
    QCoreApplication::setApplicationName(QStringLiteral("Versewell"));
    QCoreApplication::setApplicationVersion(QStringLiteral("1.5.6"));
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settingsFolder.path());
    QDesktopServices::setUrlHandler(QStringLiteral("http"), this, "noteOpenedUrl");
}

void tst_AboutDialog::init()
{
    QSettings().setValue(QStringLiteral("endpoints/Maker"), QStringLiteral("http://127.0.0.1:9/maker"));
    reloadEndpoints();
}

void tst_AboutDialog::cleanupTestCase()
{
    QDesktopServices::unsetUrlHandler(QStringLiteral("http"));
}

void tst_AboutDialog::theProgramIsNamed()
{
    AboutDialog dialog;
    QCOMPARE(dialog.windowTitle(), QStringLiteral("About"));
    QCOMPARE(dialog.findChild<QLabel *>(QStringLiteral("lblAppName"))->text(), QStringLiteral("Versewell"));
    QCOMPARE(dialog.findChild<QLabel *>(QStringLiteral("lblAppVersion"))->text(),
             QStringLiteral("Version 1.5.6 (0207)"));
    QVERIFY(!dialog.findChild<QLabel *>(QStringLiteral("mainIcon"))->pixmap(Qt::ReturnByValue).isNull());
}

void tst_AboutDialog::theMakerIsALinkWhereThereIsASite()
{
    AboutDialog dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    for (const char *name : {"btnFacebook", "btnTwitter"})
        QTest::keyClick(dialog.findChild<QAbstractButton *>(QLatin1String(name)), Qt::Key_Space);
    auto *maker = dialog.findChild<QLabel *>(QStringLiteral("lblCopyright"));
    QVERIFY(maker->text().contains(QStringLiteral(">Quill &amp; &lt;b&gt;marsh</a>")));
    maker->setFocus(Qt::TabFocusReason);
    QTest::keyClick(maker, Qt::Key_Tab); // to the link in it
    QTest::keyClick(maker, Qt::Key_Return);
    const QString query = QStringLiteral("?zv_product=versewell&zv_version=1.5.6&zv_source=");
    QCOMPARE(m_opened, QStringList({QStringLiteral("http://127.0.0.1:9/maker/facebook/") + query + QLatin1String("app"),
                                    QStringLiteral("http://127.0.0.1:9/maker/twitter/") + query + QLatin1String("app"),
                                    QStringLiteral("http://127.0.0.1:9/maker/") + query + QLatin1String("app-about")}));
}

void tst_AboutDialog::withoutASiteNothingLeadsThere()
{
    QSettings().remove(QStringLiteral("endpoints/Maker"));
    reloadEndpoints();
    AboutDialog dialog;
    dialog.show();
    QVERIFY(!dialog.findChild<QLabel *>(QStringLiteral("lblCopyright"))->text().contains(QStringLiteral("href")));
    for (const char *name : {"btnFacebook", "btnTwitter"})
        QVERIFY(!dialog.findChild<QAbstractButton *>(QLatin1String(name))->isVisible());
}

QTEST_MAIN(tst_AboutDialog)
#include "tst_aboutdialog.moc"
