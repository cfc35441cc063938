// SPDX-License-Identifier: MIT
#include "app/Stage.h"
#include "support/TestTable.h"
#include "ui/MainWindow.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QSet>
#include <QTest>

#include <algorithm>

// More files at once than the list can hold, through the whole program.
class tst_ManyFiles : public QObject
{
    Q_OBJECT

private slots:
    void theListIsFilledAndNoFurther()
    {
        Stage app;
        app->mainModel()->setAutoStart(false);
        MainWindow window(
            {app->mainModel(), app->proxyModel(), app->folderScanner(), app->settings(), app->appPalette(), &*app});
        const QTemporaryDir music;
        const QList<QUrl> first = makeFiles(music.path());
        FolderScanner *scanner = app->folderScanner();
        MainModel *model = app->mainModel();
        scanner->addFolder(QUrl::fromLocalFile(music.path()));
        model->removeAll();
        model->add(first);
        QTRY_VERIFY(!scanner->processing());
        QCOMPARE(model->urls().size(), first.size()); // none of what was scanned for the list that was cleared

        scanner->addFolder(QUrl::fromLocalFile(music.path()));
        QTRY_COMPARE_WITH_TIMEOUT(model->rowCount(), identifiers, 60000);
        QTRY_VERIFY(shows(window, "The list is full. Files left out: %1"_s.arg(files - identifiers)));
        const QList<QUrl> listed = model->urls();
        QCOMPARE(QSet<QUrl>(listed.begin(), listed.end()).size(), identifiers);

        // What is in the list stays there once, and what was left out is left out again.
        model->addUrls(listed.mid(0, 1000));
        scanner->addFolder(QUrl::fromLocalFile(music.path()));
        const QString twice = "The list is full. Files left out: %1"_s.arg(2 * (files - identifiers));
        QTRY_VERIFY_WITH_TIMEOUT(shows(window, twice), 60000);
        QCOMPARE(model->rowCount(), identifiers);
        QCOMPARE(app->proxyModel()->rowCount(), identifiers);
    }

private:
    static constexpr int scanned = 5600;
    static constexpr int files = 65600;
    static constexpr int identifiers = 65536; // of 16 bits

    // In folders, those that are scanned; returns the others, which are one file under many addresses: a disk takes
    // long to make so many.
    static QList<QUrl> makeFiles(const QString &root)
    {
        for (int i = 0; i < scanned; ++i) {
            const QString folder = QStringLiteral("%1/%2").arg(root).arg(i / 100);
            QFile file(QStringLiteral("%1/Song %2.mp3").arg(folder).arg(i));
            if (!QDir().mkpath(folder) || !file.open(QIODevice::WriteOnly))
                qFatal("cannot make %s", qPrintable(file.fileName()));
        }
        QList<QUrl> others;
        for (int i = scanned; i < files; ++i) {
            others.append(QUrl::fromLocalFile(root + QLatin1String("/0/Song 0.mp3")));
            others.last().setQuery(QString::number(i));
        }
        return others;
    }

    static bool shows(const MainWindow &window, const QString &text)
    {
        const QList<QLabel *> labels = window.findChildren<QLabel *>();
        return std::any_of(labels.begin(), labels.end(),
                           [&text](const QLabel *label) { return label->text() == text; });
    }
};

QTEST_APPLESS_MAIN(tst_ManyFiles)
#include "tst_manyfiles.moc"
