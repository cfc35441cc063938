// SPDX-License-Identifier: MIT
#include "model/MainModel.h"
#include "support/TestTable.h"
#include "ui/LyricsExport.h"
#include "ui/StatusLine.h"

#include <QMainWindow>
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
        tags::MendedSaves mended;
        mended.waiting.append("/stick/song.mp3"_s);
        mended.underWay.append("/share/song.mp3"_s);
        m_line.showSavesMended(mended);
        QVERIFY(text().contains(mended.waiting.first()));
        QVERIFY(text().endsWith("still being restored: /share/song.mp3"_s));
        m_line.showSavesMended({});
        QCOMPARE(text(), QString());
    }

    void songsThatCouldNotBeWrittenAreCountedUntilTheyAre()
    {
        m_line.showWritesFailed("no room"_s, 2);
        m_line.showWritesFailed("gone"_s, 1);
        QVERIFY(text().contains(": 3 (gone; no room)"_s));
        m_line.updateWritesFailed("gone"_s, 0);
        QVERIFY(text().contains(": 2 (no room)"_s));
        m_line.updateWritesFailed("no room"_s, 0);
        QCOMPARE(text(), QString());
        m_line.showWritesFailed("no room"_s, 2);
        dismissal()->click();
        m_line.updateWritesFailed("no room"_s, 1); // dismissed is dismissed
        QCOMPARE(text(), QString());
    }

    void noticesFollowTheLanguage()
    {
        m_line.addUnsupportedFiles(2);
        m_line.addUnsupportedFiles(1);
        QVERIFY(text().endsWith("supported: 3"_s));
        Shouting language;
        QCoreApplication::installTranslator(&language);
        m_line.retranslate();
        QVERIFY(text().startsWith("FILES LEFT OUT"_s));
        dismissal()->click();
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

private:
    // The button of the notice that is shown; null for none.
    [[nodiscard]] QToolButton *dismissal() const
    {
        for (auto *button : m_window.findChildren<QToolButton *>()) {
            if (!button->parentWidget()->isHidden())
                return button;
        }
        return nullptr;
    }
    [[nodiscard]] QString text() const { return dismissal() ? dismissal()->accessibleDescription() : QString(); }

    QMainWindow m_window;
    StatusLine m_line{m_window.statusBar()};
};

QTEST_MAIN(tst_StatusNotices)
#include "tst_statusnotices.moc"
