// SPDX-License-Identifier: MIT
#include "lyrics/SearchProvider.h"

#include "network/Endpoints.h"

#include <QDesktopServices>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

class tst_SearchProvider : public QObject
{
    Q_OBJECT

public slots:
    void noteOpenedUrl(const QUrl &url) { m_opened.append(QString::fromLatin1(url.toEncoded())); }

private slots:
    void initTestCase();
    void thePageOfTheChosenEngineIsOpened_data();
    void thePageOfTheChosenEngineIsOpened();

private:
    QTemporaryDir m_settingsFolder;
    QStringList m_opened;
};

void tst_SearchProvider::initTestCase()
{
    QCoreApplication::setOrganizationName(QStringLiteral("VersewellTest"));
    QCoreApplication::setApplicationName(QStringLiteral("SearchProvider"));
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settingsFolder.path());
    QSettings().setValue(QStringLiteral("endpoints/Bing"), QStringLiteral("http://127.0.0.1:9/mirror"));
    reloadEndpoints();
}

void tst_SearchProvider::thePageOfTheChosenEngineIsOpened_data()
{
    QTest::addColumn<QString>("engine");
    QTest::addColumn<QString>("query");
    QTest::addColumn<QString>("address");
    const auto row = [](const char *name, const char *engine, const char *query, const char *address) {
        QTest::newRow(name) << engine << QString::fromUtf8(query) << address;
    };
    row("the first engine", "Google", "Nora Vale Harbour", "https://www.google.com/search?q=Nora%20Vale%20Harbour");
    row("an engine at another address", "Bing", "x", "http://127.0.0.1:9/mirror/?q=x");
    row("an engine with another key", "Yahoo", "x", "https://search.yahoo.com/search?p=x");
    row("an engine with a folder", "Yandex", "x", "https://yandex.com/search/?q=x");
    row("no engine chosen", "", "x", "https://www.google.com/search?q=x");
    row("names are told apart by case", "bing", "x", "https://www.google.com/search?q=x");
    row("an empty query", "Google", "", "https://www.google.com/search?q=");
    row("nothing leaves the value", "Google", "a&q=b#c", "https://www.google.com/search?q=a%26q%3Db%23c");
    row("a plus sign stays", "Google", "Ash + Oak", "https://www.google.com/search?q=Ash%20+%20Oak");
    row("a percent sign", "Google", "100% sure", "https://www.google.com/search?q=100%25%20sure");
    row("quotes", "Google", "\"It's\" `so`", "https://www.google.com/search?q=%22It's%22%20%60so%60");
    row("Cyrillic", "Google", "Дом", "https://www.google.com/search?q=%D0%94%D0%BE%D0%BC");
    row("the placeholder itself", "Google", "{{QUERY}}", "https://www.google.com/search?q=%7B%7BQUERY%7D%7D");
}

void tst_SearchProvider::thePageOfTheChosenEngineIsOpened()
{
    QFETCH(QString, engine);
    QFETCH(QString, query);
    QFETCH(QString, address);
    m_opened.clear();
    for (const char *scheme : {"http", "https"})
        QDesktopServices::setUrlHandler(QLatin1String(scheme), this, "noteOpenedUrl");
    const SearchProvider provider;
    provider.search(query, engine);
    QCOMPARE(provider.effectiveName(engine), provider.names().contains(engine) ? engine : QStringLiteral("Google"));
    for (const char *scheme : {"http", "https"})
        QDesktopServices::unsetUrlHandler(QLatin1String(scheme));
    QCOMPARE(m_opened, QStringList{address});
}

QTEST_MAIN(tst_SearchProvider)
#include "tst_searchprovider.moc"
