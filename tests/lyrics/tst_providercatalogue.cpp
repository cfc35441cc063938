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
    SiteRig rig({
        Endpoint::LyricsFreak,
        Endpoint::Megalyrics,
        Endpoint::AZLyrics,
    });
    QStringList names;
    for (const auto &provider : makeProviders(rig.manager())) {
        names.append(provider->name());
        QCOMPARE(QUrl(provider->siteUrl()).adjusted(QUrl::StripTrailingSlash), QUrl(rig.server().base()));
    }
    const QStringList expected{
        QStringLiteral("LyricsFreak"),
        QStringLiteral("Megalyrics"),
        QStringLiteral("AZLyrics"),
    };
    QCOMPARE(names, expected);
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
