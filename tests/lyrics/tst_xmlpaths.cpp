// SPDX-License-Identifier: MIT
#include "lyrics/XmlPaths.h"

#include <QTest>

class tst_XmlPaths : public QObject
{
    Q_OBJECT

private slots:
    void followsPaths_data();
    void followsPaths();
    void treatsBadDocumentsAsEmpty_data();
    void treatsBadDocumentsAsEmpty();
};

void tst_XmlPaths::followsPaths_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("count");
    QTest::newRow("the root") << "lfm"
                              << "" << 1;
    QTest::newRow("another root") << "rss"
                                  << "" << 0;
    QTest::newRow("a name means the first child, and all when counted") << "lfm.list.track"
                                                                        << "one" << 3;
    QTest::newRow("an index counts children of that name only") << "lfm.list.track[1]"
                                                                << "two" << 1;
    QTest::newRow("an index beyond the last") << "lfm.list.track[3]"
                                              << "" << 0;
    QTest::newRow("an index that is no number of ours") << "lfm.list.track[99999999999]"
                                                        << "" << 0;
    QTest::newRow("behind an index") << "lfm.list.track[2].artist.name"
                                     << "Мельница 🎵" << 1;
    QTest::newRow("an attribute") << "lfm.list.track[rank=2]"
                                  << "two" << 2;
    QTest::newRow("several attributes") << "lfm.list.track[rank=2,kind=live]"
                                        << "three & more" << 1;
    QTest::newRow("a step behind an attribute") << "lfm.list.track[kind=live].artist.name"
                                                << "Мельница 🎵" << 1;
    QTest::newRow("values are case-sensitive") << "lfm.list.track[kind=Live]"
                                               << "" << 0;
    QTest::newRow("a missing attribute is not an empty one") << "lfm.list.track[kind=]"
                                                             << "" << 0;
    QTest::newRow("the text is that of the element alone, trimmed") << "lfm.list.track[2]"
                                                                    << "three & more" << 1;
    QTest::newRow("the first one of a name decides") << "lfm.other.name"
                                                     << "" << 0;
    QTest::newRow("a prefix is part of the name") << "lfm.x:name"
                                                  << "prefixed" << 1;
    QTest::newRow("no path") << ""
                             << "" << 0;
    QTest::newRow("below an element without children") << "lfm.x:name.y.z"
                                                       << "" << 0;
}

void tst_XmlPaths::followsPaths()
{
    QFETCH(QString, path);
    const XmlPaths xml(QByteArrayLiteral(R"(<?xml version="1.0" encoding="utf-8"?><!-- c -->
        <lfm><list>
            <track rank="1"> one </track><album>none</album><track rank="2">two</track>
            <track kind="live" rank="2">three <artist><name>Мельница &#127925;</name></artist> <![CDATA[& more]]></track>
        </list>
        <other/><other><name>late</name></other><x:name>prefixed</x:name></lfm>)"));
    QTEST(xml.text(path).simplified(), "text");
    QTEST(xml.count(path), "count");
}

void tst_XmlPaths::treatsBadDocumentsAsEmpty_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("cut off") << QByteArray("<a><b>x</b>");
    QTest::newRow("a page") << QByteArray("<!DOCTYPE html><html><a>x<br></a></html>");
    QTest::newRow("plain text") << QByteArray("service unavailable");
    QTest::newRow("two roots") << QByteArray("<a>x</a><a>y</a>");
    QTest::newRow("NUL") << QByteArray("<a>x\0y</a>", 10);
    QTest::newRow("a document type with entities")
        << QByteArray(R"(<!DOCTYPE a [<!ENTITY b "xxxx"><!ENTITY c "&b;&b;&b;">]><a>&c;&c;</a>)");
    QTest::newRow("an entity that nobody declared") << QByteArray("<a>&b;</a>");
    QTest::newRow("brackets, 1 MiB") << QByteArray(1 << 20, '<');
    QTest::newRow("nesting that does not end, 1 MiB") << QByteArray("<a>").repeated(1 << 18);
    QByteArray attributes = "<a";
    for (int i = 0; attributes.size() < 1 << 20; ++i)
        attributes += " b" + QByteArray::number(i) + "=''";
    QTest::newRow("attributes, 1 MiB: compared with each other they would take minutes") << attributes + "/>";
}

void tst_XmlPaths::treatsBadDocumentsAsEmpty()
{
    QFETCH(QByteArray, document);
    const XmlPaths xml(document);
    QVERIFY(xml.isEmpty());
    QCOMPARE(xml.count(QStringLiteral("a")), 0);
    QVERIFY(xml.text(QStringLiteral("a.b")).isEmpty());
}

QTEST_APPLESS_MAIN(tst_XmlPaths)
#include "tst_xmlpaths.moc"
