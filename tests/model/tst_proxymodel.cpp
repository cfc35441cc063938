// SPDX-License-Identifier: MIT
#include "model/ProxyModel.h"
#include "support/TestTable.h"

#include "model/MainModel.h"
#include "support/TestFolder.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>
#include <QWindow>

namespace {

// Songs without tags called "0.mp3", "1.mp3" and so on, some with lyrics; nothing is searched for.
class Stage
{
public:
    explicit Stage(int count, const QVector<int> &withLyrics = {})
    {
        model.setReaderProgram(QStringLiteral(VERSEWELL_READER));
        proxy.setSourceModel(&model);
        add(0, count);
        if (!QTest::qWaitFor([this, count] { return count == 0 || model.itemAt(count - 1)->tagsLoaded(); }, 20000))
            qFatal("the tags were not read");
        for (const int row : withLyrics)
            model.itemAt(row)->setFoundLyricsTag({}, {}, "la"_s);
    }
    void add(int first, int count)
    {
        QList<QUrl> urls;
        for (int i = first; i < first + count; ++i)
            urls.append(QUrl::fromLocalFile(folder.write("%1.mp3"_s.arg(i))));
        model.add(urls);
    }
    // The numbers of the songs that are shown, of those selected and of the current one.
    QVector<int> shown() const
    {
        QVector<int> songs;
        for (int row = 0; row < proxy.rowCount(); ++row)
            songs.append(numberIn(data(row, MainModel::filenameRole).toString()));
        return songs;
    }
    QVector<int> selected() const
    {
        QVector<int> songs = shown();
        for (int row = songs.size() - 1; row >= 0; --row) {
            if (!data(row, MainModel::selectedRole).toBool())
                songs.removeAt(row);
        }
        return songs;
    }
    int current() const { return proxy.currentItem() ? numberIn(proxy.currentItem()->filename()) : -1; }
    bool click(int row, Qt::KeyboardModifier modifier = Qt::NoModifier)
    {
        static const QMap<Qt::KeyboardModifier, int> keys{
            {Qt::ControlModifier, Qt::Key_Control}, {Qt::ShiftModifier, Qt::Key_Shift}, {Qt::AltModifier, Qt::Key_Alt}};
        const int key = keys.value(modifier);
        QTest::simulateEvent(&window, true, key, modifier, QString(), false, 0);
        const bool plain = proxy.itemClicked(row);
        QTest::simulateEvent(&window, false, key, Qt::NoModifier, QString(), false, 0);
        return plain;
    }

    TestFolder folder;
    MainModel model;
    ProxyModel proxy;
    QAbstractItemModelTester tester{&proxy, QAbstractItemModelTester::FailureReportingMode::Fatal};
    QSignalSpy currents{&proxy, &ProxyModel::currentIndexChanged};
    QSignalSpy counts{&proxy, &ProxyModel::selectedCountChanged};
    QWindow window;

private:
    QVariant data(int row, int role) const { return proxy.data(proxy.index(row, 0), role); }
    static int numberIn(const QString &name) { return name.section(QLatin1Char('.'), 0, 0).toInt(); }
};

using Songs = QVector<int>;

} // namespace

Q_DECLARE_METATYPE(Qt::KeyboardModifier)

class tst_ProxyModel : public QObject
{
    Q_OBJECT

private slots:
    void songsWithLyricsAreHiddenAndShown()
    {
        Stage stage(6, {1, 4, 5});
        stage.proxy.setCurrentIndex(2);
        stage.proxy.selectAll();
        QStringList heard;
        const auto note = [&heard](const QString &what) {
            return [&heard, what] {
                heard << what;
            };
        };
        connect(&stage.proxy, &ProxyModel::hiddenCountChanged, this, note("hidden"_s));
        connect(&stage.proxy, &ProxyModel::selectedCountChanged, this, note("count"_s));
        connect(&stage.proxy, &ProxyModel::showFoundChanged, this, note("flag"_s));
        connect(&stage.proxy, &ProxyModel::currentIndexChanged, this, note("row"_s));
        for (int time = 0; time < 2; ++time)
            stage.proxy.setShowFound(false);
        QCOMPARE(heard.join(QLatin1Char(' ')), "count hidden flag row"_s); // the counts first, and each once
        QCOMPARE(stage.shown(), (Songs{0, 2, 3}));
        QCOMPARE(stage.proxy.hiddenCount(), 3);
        QCOMPARE(stage.counts.last(), QVariantList{3});
        stage.proxy.setShowFound(true);
        QCOMPARE(stage.shown(), (Songs{0, 1, 2, 3, 4, 5}));
        QCOMPARE(stage.selected(), (Songs{0, 2, 3}));
    }

    void songsComeAndGoWithTheirLyrics()
    {
        Stage stage(5);
        stage.proxy.setShowFound(false);
        stage.proxy.setCurrentIndex(3);
        stage.proxy.selectAll();
        for (const QString &lyrics : {"la"_s, QString()}) {
            stage.model.itemAt(1)->setEditedLyricsTag(lyrics);
            QCOMPARE(stage.shown(), lyrics.isEmpty() ? (Songs{0, 1, 2, 3, 4}) : (Songs{0, 2, 3, 4}));
            QCOMPARE(stage.selected(), (Songs{0, 2, 3, 4}));
            QCOMPARE(stage.proxy.hiddenCount(), lyrics.isEmpty() ? 0 : 1);
            QCOMPARE(stage.current(), 3);
            QCOMPARE(stage.currents.last(), QVariantList{lyrics.isEmpty() ? 3 : 2});
        }
        stage.add(5, 2);
        QCOMPARE(stage.shown().size(), 7);
        QCOMPARE(stage.proxy.selectedIds(), (QVector<quint16>{1, 3, 4, 5}));
    }

    void clicksSelect_data()
    {
        QTest::addColumn<int>("current");
        QTest::addColumn<int>("row");
        QTest::addColumn<Qt::KeyboardModifier>("modifier");
        QTest::addColumn<QVector<int>>("selected");
        QTest::addColumn<int>("currentAfter");
        addRow("a plain click", 2, 4, Qt::NoModifier, Songs{4}, 4);
        addRow("on the current row: nothing is replaced", 2, 2, Qt::NoModifier, Songs{2}, 2);
        addRow("on empty space, without a current row but with one that Control has selected", -1, -1, Qt::NoModifier,
               Songs{}, -1);
        addRow("on empty space", 2, -1, Qt::NoModifier, Songs{}, -1);
        addRow("beyond the rows", 2, 9, Qt::NoModifier, Songs{2}, 2);
        addRow("Control adds", 2, 0, Qt::ControlModifier, Songs{0, 2}, 2);
        addRow("Control takes away", 2, 2, Qt::ControlModifier, Songs{}, 2);
        addRow("Control beyond the rows", 2, -1, Qt::ControlModifier, Songs{2}, 2);
        addRow("Shift downwards", 2, 4, Qt::ShiftModifier, Songs{2, 3, 4}, 2);
        addRow("Shift upwards", 2, 0, Qt::ShiftModifier, Songs{0, 1, 2}, 2);
        addRow("Shift without a current row", -1, 3, Qt::ShiftModifier, Songs{}, -1);
        addRow("another modifier", 2, 4, Qt::AltModifier, Songs{2}, 2);
    }

    void clicksSelect()
    {
        QFETCH(int, current);
        QFETCH(int, row);
        QFETCH(Qt::KeyboardModifier, modifier);
        QFETCH(QVector<int>, selected);
        Stage stage(5);
        stage.proxy.setCurrentIndex(current);
        if (current == -1 && row == -1)
            stage.click(1, Qt::ControlModifier);
        const int countBefore = stage.proxy.selectedCount();
        stage.counts.clear();
        QCOMPARE(stage.click(row, modifier), modifier == Qt::NoModifier);
        QCOMPARE(stage.selected(), selected);
        QCOMPARE(stage.proxy.selectedCount(), selected.size());
        QTEST(stage.proxy.currentIndex(), "currentAfter");
        QCOMPARE(stage.counts.count(), selected.size() == countBefore ? 0 : 1);
        QCOMPARE(stage.currents.count(), (current >= 0 ? 1 : 0) + (stage.proxy.currentIndex() == current ? 0 : 1));
        QCOMPARE(stage.proxy.currentItem() == nullptr, stage.proxy.currentIndex() < 0);
    }

    void theFocusStaysOnTheSong()
    {
        Stage stage(6, {0, 1, 5});
        stage.proxy.setCurrentIndex(3);
        stage.proxy.setShowFound(false);
        QCOMPARE(stage.current(), 3);
        QCOMPARE(stage.currents.last(), QVariantList{1});
        QCOMPARE(stage.selected(), Songs{3});
        stage.proxy.setShowFound(true);
        QCOMPARE(stage.current(), 3);
        QCOMPARE(stage.currents.last(), QVariantList{3});
        stage.proxy.setCurrentIndex(5);
        stage.proxy.setShowFound(false); // hides it
        QCOMPARE(stage.current(), 4);
        QCOMPARE(stage.selected(), Songs{});
        stage.proxy.setShowFound(true);
        stage.proxy.setCurrentIndex(4);
        QVERIFY(stage.model.removeRows(0, 2));
        QCOMPARE(stage.current(), 4);
        QCOMPARE(stage.selected(), Songs{4});
        QCOMPARE(stage.currents.last(), QVariantList{2});
    }

    // In ranges and, when there are too many of them, in one reset: both end on the same song.
    void theNextSongBecomesCurrent()
    {
        for (const int lastRemoved : {19, 199}) {
            Stage stage(220);
            stage.proxy.setCurrentIndex(11);
            stage.proxy.selectAll();
            QSignalSpy resets(&stage.proxy, &ProxyModel::modelReset);
            QVector<int> odd;
            for (int row = 1; row <= lastRemoved; row += 2)
                odd.append(row);
            stage.model.removeScattered(odd);
            QCOMPARE(resets.count(), lastRemoved == 199 ? 1 : 0);
            QCOMPARE(stage.proxy.selectedCount(), 220 - odd.size());
            QCOMPARE(stage.current(), 12);
            QCOMPARE(stage.proxy.currentIndex(), 6);
        }
    }

    void rowsAreRemoved_data()
    {
        QTest::addColumn<bool>("hide");
        QTest::addColumn<bool>("all");
        QTest::addColumn<QVector<int>>("left");
        QTest::addColumn<int>("current");
        addRow("the selected ones", false, false, Songs{0, 3, 4}, 4);
        addRow("the selected ones among those shown", true, false, Songs{0, 1, 2, 4}, 4);
        addRow("all", false, true, Songs{}, -1);
        addRow("all that are shown", true, true, Songs{1, 2}, -1);
    }

    void rowsAreRemoved()
    {
        QFETCH(bool, hide);
        QFETCH(bool, all);
        QFETCH(QVector<int>, left);
        Stage stage(6, {1, 2});
        stage.proxy.setShowFound(!hide);
        const int last = stage.proxy.rowCount() - 1;
        stage.proxy.setCurrentIndex(last);
        stage.click(1, Qt::ControlModifier);
        if (!hide)
            stage.click(2, Qt::ControlModifier);
        stage.currents.clear();
        stage.counts.clear();
        all ? stage.proxy.removeAll() : stage.proxy.removeSelected();
        QCOMPARE(stage.proxy.selectedCount(), 0);
        QTEST(stage.current(), "current");
        stage.proxy.setShowFound(true);
        QCOMPARE(stage.shown(), left);
        QVERIFY(!stage.currents.isEmpty() && !stage.counts.isEmpty());
    }

    void clearingTheWholeListForgetsWhatHasNoRow()
    {
        Stage stage(2, {1});
        const QUrl away = QUrl::fromLocalFile("/no such stick/album/song.mp3"_s);
        stage.model.keep({away.toString()});
        stage.model.restore();
        stage.proxy.setShowFound(false);
        stage.proxy.removeAll();
        QCOMPARE(stage.model.urls().size(), 2); // the hidden one, and the one that is away
        stage.proxy.setShowFound(true);
        stage.proxy.removeAll();
        QCOMPARE(stage.model.urls(), QList<QUrl>());
    }
};

QTEST_MAIN(tst_ProxyModel)
#include "tst_proxymodel.moc"
