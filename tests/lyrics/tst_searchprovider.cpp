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
        const char *google = "https://www.google.com/search?q=";
        const auto onGoogle = [google](const char *name, const char *query, const char *value) {
            addRow(name, "Google", query, QString::fromLatin1(google) + QLatin1String(value));
        };
        addRow("an engine at another address", "Bing", "x", "http://127.0.0.1:9/mirror/?q=x");
        addRow("an engine with another key", "Yahoo", "x", "https://search.yahoo.com/search?p=x");
        addRow("an engine with a folder", "Yandex", "x", "https://yandex.com/search/?q=x");
        addRow("no engine chosen", "", "", google);
        addRow("names are told apart by case", "bing", "", google);
        onGoogle("nothing leaves the value", "a&q=b#c", "a%26q%3Db%23c");
        onGoogle("plus and percent signs", "Ash + Oak 100%", "Ash%20+%20Oak%20100%25");
        onGoogle("quotes", "\"It's\" `so`", "%22It's%22%20%60so%60");
        onGoogle("Cyrillic", "Дом", "%D0%94%D0%BE%D0%BC");
        onGoogle("the placeholder itself", "{{QUERY}}", "%7B%7BQUERY%7D%7D");
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
