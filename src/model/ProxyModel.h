// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractProxyModel>
#include <QBitArray>
#include <QVector>

class MainModel;
class ModelItem;

// The list as people see it: the main model, without the songs that have lyrics when those are hidden, together with
// the current row and the selection.
//
// It keeps a row map of its own, so that hiding, selecting and removing sixty thousand rows costs one pass: rows come
// and go in ranges or, when there are too many ranges, as one reset. The selection is a set of item ids, so that it
// follows the songs; the current row follows its song too. Main thread only.
class ProxyModel : public QAbstractProxyModel
{
    Q_OBJECT
    Q_PROPERTY(bool showFound READ showFound WRITE setShowFound NOTIFY showFoundChanged)
    Q_PROPERTY(int hiddenCount READ hiddenCount NOTIFY hiddenCountChanged)
    Q_PROPERTY(int currentIndex READ currentIndex WRITE setCurrentIndex NOTIFY currentIndexChanged)
    Q_PROPERTY(int selectedCount READ selectedCount NOTIFY selectedCountChanged)

public:
    explicit ProxyModel(QObject *parent = nullptr);

    // Takes a MainModel or null; anything else counts as null. Not owned.
    void setSourceModel(QAbstractItemModel *model) override;

    [[nodiscard]] QModelIndex mapToSource(const QModelIndex &proxyIndex) const override;
    [[nodiscard]] QModelIndex mapFromSource(const QModelIndex &sourceIndex) const override;
    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex &child) const override;
    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    // Whether songs that have lyrics are shown.
    [[nodiscard]] bool showFound() const { return m_showFound; }
    [[nodiscard]] int hiddenCount() const;
    // -1 when no row is current.
    [[nodiscard]] int currentIndex() const { return m_currentIndex; }
    [[nodiscard]] int selectedCount() const { return m_selectedCount; }
    // The ids of the selected songs, in row order.
    [[nodiscard]] QVector<quint16> selectedIds() const;

    // A click on a row with the keyboard modifiers that are held. Without any, the row becomes the current and the only
    // selected one, and -1 empties the selection. Control toggles the row; Shift adds all rows from the current one to
    // this one. True when the click was a plain one.
    Q_INVOKABLE bool itemClicked(int n);
    Q_INVOKABLE void removeSelected();
    // By their ids, shown or not; those that are not in the list are ignored.
    void removeSongs(const QVector<quint16> &ids);
    // Removes the songs that are shown; hidden ones stay. When none is hidden, all that the list holds: see
    // MainModel::removeAll().
    Q_INVOKABLE void removeAll();
    Q_INVOKABLE void selectAll();
    Q_INVOKABLE void locate(int n) const;
    Q_INVOKABLE bool isSelected(int row) const;
    // Null when no row is current.
    Q_INVOKABLE ModelItem *currentItem() const;
    // The one selected song; null when none or several are selected.
    Q_INVOKABLE ModelItem *selectedItem() const;
    // Null when there is no such row.
    Q_INVOKABLE ModelItem *itemAt(int row) const;
    // -1 when the song is not shown.
    Q_INVOKABLE int rowOf(int id) const;

    // For the keyboard; nothing when there is no such row. The row becomes current, and all rows from the first current
    // one of a series of such calls to this one are selected, no others.
    Q_INVOKABLE void extendSelection(int n);
    // The row becomes current, and the selection stays.
    Q_INVOKABLE void moveCurrent(int n);
    // The current row is selected if it is not, and the other way round.
    Q_INVOKABLE void toggleCurrent();

public slots:
    // Selects this row alone; a negative one empties the selection. Nothing when it is current already.
    void setCurrentIndex(int n);
    void setShowFound(bool on);
    // Drops songs that are not shown any more from the selection. Rows take their marks along when they go, so that
    // there is nothing left to drop; for those who ask nevertheless.
    void removeInvalidSelections();

signals:
    void showFoundChanged(bool on);
    void hiddenCountChanged();
    void currentIndexChanged(int index);
    void selectedCountChanged(int count);

private:
    // What was announced last, to tell afterwards what has changed.
    struct Before
    {
        int currentIndex;
        const ModelItem *currentItem;
        int selectedCount;
        int hiddenCount;
    };

    [[nodiscard]] Before before() const;
    [[nodiscard]] bool accepts(int sourceRow) const;
    [[nodiscard]] QVector<int> acceptedRows(int first, int last) const;
    [[nodiscard]] quint16 idAt(int row) const;
    // The first row whose source row is not below this one; the row count when there is none.
    [[nodiscard]] int lowerBound(int sourceRow) const;
    [[nodiscard]] bool isRow(int row) const { return row >= 0 && row < m_rows.size(); }

    void connectSource();
    void sourceRowsInserted(int first, int last);
    void sourceRowsAboutToBeRemoved(int first, int last);
    void sourceRowsRemoved(int first, int last);
    void sourceDataChanged(int first, int last, const QVector<int> &roles);
    void insertBlock(int position, const QVector<int> &sourceRows);
    void hideRow(int row);
    void forgetRows(int first, int last);
    void announce(const Before &before);
    void announceCurrent(const Before &before);
    void announceCounts(const Before &before);

    void rememberCurrent();
    void refilter();
    void keepCurrentSelected();

    bool mark(int row, bool on);
    void selectRows(int first, int last, bool on);
    void clearMarks();
    void dropHiddenMarks();
    void selectionChanged(int countBefore);
    void removeSourceRows(const QVector<int> &rows);

    MainModel *m_model = nullptr;
    QVector<int> m_rows;  // source row of each row; ascends
    QBitArray m_selected; // by item id
    int m_selectedCount = 0;
    int m_currentIndex = -1;
    int m_anchorId = -1; // of the song where an extension of the selection began; -1 when there was none
    bool m_showFound = true;
    bool m_removing = false;    // rows of ours are among those that the source is removing
    Before m_beforeChange = {}; // of the removal or reset that the source has announced
    // Of the current song and those below it, while the source is reset: the first that is left becomes current.
    QVector<quint16> m_currentIds;
};
