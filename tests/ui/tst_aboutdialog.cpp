// SPDX-License-Identifier: MIT
#include "ui/AboutDialog.h"

#include "network/Endpoints.h"
#include "support/TestFolder.h"
#include "support/TestTable.h"

#include <QAbstractButton>
#include <QDesktopServices>
#include <QLabel>
#include <QSettings>

class tst_AboutDialog : public QObject
{
    Q_OBJECT

public slots:
    void noteOpenedUrl(const QUrl &url) { m_opened.append(url.toString()); }

private slots:
    void initTestCase()
    {
        m_settingsFolder.holdSettings();
        QCoreApplication::setOrganizationName("Quill & <b>marsh"_s);
        QCoreApplication::setApplicationVersion("1.5.6"_s);
        QDesktopServices::setUrlHandler("http"_s, this, "noteOpenedUrl");
    }

    void theMakerIsALinkWhereThereIsASite()
    {
        QSettings().setValue("endpoints/Maker"_s, "http://127.0.0.1:9/maker"_s);
        reloadEndpoints();
        AboutDialog dialog;
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        QCOMPARE(label(dialog, "lblAppVersion")->text(), "Version 1.5.6 (0207)"_s);
        for (const char *name : {"btnFacebook", "btnTwitter"})
            QTest::keyClick(dialog.findChild<QAbstractButton *>(QLatin1String(name)), Qt::Key_Space);
        QLabel *maker = label(dialog, "lblCopyright");
        QVERIFY(maker->text().contains(">Quill &amp; &lt;b&gt;marsh</a>"_s));
        maker->setFocus(Qt::TabFocusReason);
        QTest::keyClick(maker, Qt::Key_Tab); // to the link in it
        QTest::keyClick(maker, Qt::Key_Return);
        const QString page = "http://127.0.0.1:9/maker%1?zv_product=versewell&zv_version=1.5.6&zv_source=%2"_s;
        QCOMPARE(m_opened, (QStringList{page.arg("/facebook/"_s, "app"_s), page.arg("/twitter/"_s, "app"_s),
                                        page.arg("/"_s, "app-about"_s)}));
    }

    void withoutASiteNothingLeadsThere()
    {
        QSettings().remove("endpoints/Maker"_s);
        reloadEndpoints();
        AboutDialog dialog;
        dialog.show();
        QVERIFY(!label(dialog, "lblCopyright")->text().contains("href"_s));
        for (const char *name : {"btnFacebook", "btnTwitter"})
            QVERIFY(!dialog.findChild<QAbstractButton *>(QLatin1String(name))->isVisible());
    }

private:
    static QLabel *label(const AboutDialog &dialog, const char *name)
    {
        return dialog.findChild<QLabel *>(QLatin1String(name));
    }

    const TestFolder m_settingsFolder{};
    QStringList m_opened;
};

QTEST_MAIN(tst_AboutDialog)
#include "tst_aboutdialog.moc"
