// SPDX-License-Identifier: MIT
#include "lyrics/SearchProvider.h"
#include "network/Endpoints.h"
#include "support/TestFolder.h"
#include "support/TestTable.h"

#include <QDesktopServices>
#include <QSettings>

class tst_SearchProvider : public QObject
{
    Q_OBJECT

public slots:
    void noteOpenedUrl(const QUrl &url) { m_opened.append(QString::fromLatin1(url.toEncoded())); }

private slots:
    void initTestCase()
    {
        m_folder.holdSettings();
        QSettings().setValue("endpoints/Bing"_s, "http://127.0.0.1:9/mirror"_s);
        reloadEndpoints();
        for (const char *scheme : {"http", "https"})
            QDesktopServices::setUrlHandler(QLatin1String(scheme), this, "noteOpenedUrl");
    }

    void opensThePageOfTheChosenEngine_data()
    {
        addTextColumns("engine", "query", "address");
        addRow("an engine at another address", "Bing", "x", "http://127.0.0.1:9/mirror/?q=x");
        addRow("an engine with a folder", "Yandex", "Дом", "https://yandex.com/search/?q=%D0%94%D0%BE%D0%BC");
        addRow("no engine chosen", "", "", "https://www.google.com/search?q=");
        addRow("told apart by case", "bing", "a&q=b#c", "https://www.google.com/search?q=a%26q%3Db%23c");
        addRow("signs", "Google", "A + O 100% \"{{", "https://www.google.com/search?q=A%20+%20O%20100%25%20%22%7B%7B");
        addRow("the placeholder", "Google", "{{QUERY}}", "https://www.google.com/search?q=%7B%7BQUERY%7D%7D");
    }

    void opensThePageOfTheChosenEngine()
    {
        QFETCH(QString, engine);
        QFETCH(QString, query);
        m_opened.clear();
        const SearchProvider provider;
        provider.search(query, engine);
        QCOMPARE(provider.effectiveName(engine), provider.names().contains(engine) ? engine : "Google"_s);
        QTEST(m_opened.join(QLatin1Char(' ')), "address");
    }

private:
    TestFolder m_folder;
    QStringList m_opened;
};

QTEST_MAIN(tst_SearchProvider)
#include "tst_searchprovider.moc"
