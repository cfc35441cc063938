// SPDX-License-Identifier: MIT
#include "SiteRig.h"
#include "lyrics/providers/ProviderCatalogue.h"

#include <QTest>

class tst_ProviderCatalogue : public QObject
{
    Q_OBJECT

private slots:
    void listsTheSitesInTheirOrder();
    void copiesEachSite();
};

void tst_ProviderCatalogue::listsTheSitesInTheirOrder()
{
    SiteRig rig({Endpoint::LyricsFreak, Endpoint::Genius, Endpoint::Megalyrics, Endpoint::AZLyrics,
                 Endpoint::DarkLyrics, Endpoint::MusixMatch});
    QStringList names;
    for (const auto &provider : makeProviders(rig.manager())) {
        names.append(provider->name());
        QVERIFY(provider->siteUrl().startsWith(rig.server().base()));
    }
    QCOMPARE(names.join(QLatin1Char(' ')),
             QStringLiteral("LyricsFreak Genius Megalyrics AZLyrics DarkLyrics MusixMatch"));
}

void tst_ProviderCatalogue::copiesEachSite()
{
    const SiteRig rig({});
    for (const auto &provider : makeProviders(nullptr)) {
        QObject owner;
        const LyricsProvider *copy = provider->clone(&owner);
        QCOMPARE(copy->parent(), &owner);
        QCOMPARE(copy->metaObject(), provider->metaObject());
    }
}

QTEST_GUILESS_MAIN(tst_ProviderCatalogue)
#include "tst_providercatalogue.moc"
