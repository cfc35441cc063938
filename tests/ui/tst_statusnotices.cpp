// SPDX-License-Identifier: MIT
#include "model/MainModel.h"
#include "support/TestTable.h"
#include "ui/LyricsExport.h"
#include "ui/StatusLine.h"

#include <QMainWindow>
#include <QPointer>
#include <QSignalSpy>
#include <QStatusBar>
#include <QToolButton>
#include <QTranslator>

// A language that shouts.
class Shouting : public QTranslator
{
public:
    using QTranslator::QTranslator;
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *source, const char *, int) const override
    {
        return QString::fromUtf8(source).toUpper();
    }
};

// What the status bar tells of work that was done elsewhere.
class tst_StatusNotices : public QObject
{
    Q_OBJECT

private slots:
    void savesThatWaitAreToldOfUntilTheyAreUndone()
    {
        QMainWindow window;
        StatusLine line(window.statusBar());
        tags::MendedSaves mended;
        mended.waiting.append("/stick/song.mp3"_s);
        mended.underWay.append("/share/song.mp3"_s);
        line.showSavesMended(mended);
        const QPointer<QToolButton> dismiss = window.findChild<QToolButton *>();
        QVERIFY(dismiss && dismiss->accessibleDescription().contains(mended.waiting.first()));
        QVERIFY(dismiss->accessibleDescription().endsWith("still being restored: /share/song.mp3"_s));
        line.showSavesMended({});
        QTRY_VERIFY(!dismiss);
    }

    void songsThatCouldNotBeWrittenAreCountedUntilTheyAre()
    {
        QMainWindow window;
        StatusLine line(window.statusBar());
        const auto text = [&window] {
            for (const auto *button : window.findChildren<QToolButton *>()) {
                if (!button->parentWidget()->isHidden())
                    return button->accessibleDescription();
            }
            return QString();
        };
        line.showWritesFailed("no room"_s, 2);
        line.showWritesFailed("gone"_s, 1);
        QVERIFY(text().contains(": 3 (gone; no room)"_s));
        line.updateWritesFailed("gone"_s, 0);
        QVERIFY(text().contains(": 2 (no room)"_s));
        line.updateWritesFailed("no room"_s, 0);
        QCOMPARE(text(), QString());
        line.showWritesFailed("no room"_s, 2);
        window.findChildren<QToolButton *>().last()->click();
        line.updateWritesFailed("no room"_s, 1); // dismissed is dismissed
        QCOMPARE(text(), QString());
    }

    void noticesFollowTheLanguage()
    {
        QMainWindow window;
        StatusLine line(window.statusBar());
        line.addUnsupportedFiles(2);
        line.addUnsupportedFiles(1);
        const auto *dismiss = window.findChildren<QToolButton *>().last();
        QVERIFY(dismiss->accessibleDescription().endsWith("supported: 3"_s));
        Shouting language;
        QCoreApplication::installTranslator(&language);
        line.retranslate();
        QVERIFY(dismiss->accessibleDescription().startsWith("FILES LEFT OUT"_s));
    }

    void automaticExportsThatFailAreCountedUntilTheNextExport()
    {
        MainModel model;
        LyricsExport exports(&model);
        QVector<int> failed;
        QStringList files;
        connect(&exports, &LyricsExport::finished, this, [&](const LyricsExport::Result &result) {
            failed.append(result.failed);
            files.append(result.failedFile);
        });
        emit model.automaticExportFailed("/m/first.txt"_s);
        emit model.automaticExportFailed("/m/second.txt"_s);
        QCOMPARE(failed, (QVector<int>{1, 2}));
        QCOMPARE(files.last(), "/m/first.txt"_s);
        exports.add({});
        QTRY_COMPARE(failed, (QVector<int>{1, 2, 0}));
        emit model.automaticExportFailed("/m/third.txt"_s);
        QCOMPARE(failed.last(), 1);
    }
};

QTEST_MAIN(tst_StatusNotices)
#include "tst_statusnotices.moc"
