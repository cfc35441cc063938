// SPDX-License-Identifier: MIT
#include "lyrics/XmlPaths.h"
#include "support/TestTable.h"

class tst_XmlPaths : public QObject
{
    Q_OBJECT

private slots:
    void followsPaths_data()
    {
        addTextColumns("path", "text");
        QTest::addColumn<int>("count");
        addRow("a name means the first child, and all when counted", "lfm.list.track", "one", 3);
        addRow("an index that is no number of ours", "lfm.list.track[99999999999]", "", 0);
        addRow("behind an index", "lfm.list.track[2].artist.name", "Мельница 🎵", 1);
        addRow("several attributes", "lfm.list.track[rank=2,kind=live]", "three & more", 1);
        addRow("a missing attribute is not an empty one", "lfm.list.track[kind=]", "", 0);
        addRow("the first one of a name decides", "lfm.other.name", "", 0);
        addRow("a prefix is part of the name", "lfm.x:name", "prefixed", 1);
        addRow("no path", "", "", 0);
    }

    void followsPaths()
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

    void treatsBadDocumentsAsEmpty_data()
    {
        QTest::addColumn<QByteArray>("document");
        addRow("cut off", QByteArray("<a><b>x</b>"));
        addRow("NUL", QByteArray("<a>x\0y</a>", 10));
        addRow("a document type with entities", QByteArray("<!DOCTYPE a [<!ENTITY b \"xxxx\">]><a>&b;&b;&b;</a>"));
        addRow("nesting that does not end, 1 MiB", QByteArray("<a>").repeated(1 << 18));
        QByteArray attributes = "<a";
        for (int i = 0; attributes.size() < 1 << 20; ++i)
            attributes += " b" + QByteArray::number(i) + "=''";
        addRow("attributes, 1 MiB: compared with each other they would take minutes", attributes + "/>");
    }

    void treatsBadDocumentsAsEmpty()
    {
        QFETCH(QByteArray, document);
        const XmlPaths xml(document);
        QVERIFY(xml.isEmpty());
        QCOMPARE(xml.count("a"_s), 0);
        QVERIFY(xml.text("a.b"_s).isEmpty());
    }
};

QTEST_APPLESS_MAIN(tst_XmlPaths)
#include "tst_xmlpaths.moc"
