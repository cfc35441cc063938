// SPDX-License-Identifier: MIT
#include "model/ProxyModel.h"

#include "model/MainModel.h"

#include <QGuiApplication>
#include <QQmlEngine>

#include <algorithm>
#include <limits>

namespace {

constexpr int idCount = std::numeric_limits<quint16>::max() + 1;

} // namespace

ProxyModel::ProxyModel(QObject *parent)
    : QAbstractProxyModel(parent)
    , m_selected(idCount)
{
}

void ProxyModel::setSourceModel(QAbstractItemModel *model)
{
    const Before old = before();
    beginResetModel();
    if (m_model)
        disconnect(m_model, nullptr, this, nullptr);
    m_model = qobject_cast<MainModel *>(model);
    QAbstractProxyModel::setSourceModel(m_model);
    if (m_model)
        connectSource();
    clearMarks();
    m_currentIndex = -1;
    m_rows = m_model ? acceptedRows(0, m_model->rowCount() - 1) : QVector<int>();
    endResetModel();
    announce(old);
}

void ProxyModel::connectSource()
{
    connect(m_model, &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex &, int first, int last) { sourceRowsInserted(first, last); });
    connect(m_model, &QAbstractItemModel::rowsAboutToBeRemoved, this,
            [this](const QModelIndex &, int first, int last) { sourceRowsAboutToBeRemoved(first, last); });
    connect(m_model, &QAbstractItemModel::rowsRemoved, this,
            [this](const QModelIndex &, int first, int last) { sourceRowsRemoved(first, last); });
    connect(m_model, &QAbstractItemModel::dataChanged, this,
            [this](const QModelIndex &first, const QModelIndex &last, const QVector<int> &roles) {
                sourceDataChanged(first.row(), last.row(), roles);
            });
    connect(m_model, &QAbstractItemModel::modelAboutToBeReset, this, [this] {
        rememberCurrent();
        beginResetModel();
    });
    connect(m_model, &QAbstractItemModel::modelReset, this, [this] {
        refilter();
        endResetModel();
        announce(m_beforeChange);
    });
}

// The map

bool ProxyModel::accepts(int sourceRow) const
{
    return m_showFound || m_model->itemAt(sourceRow)->lyricsTag().isEmpty();
}

QVector<int> ProxyModel::acceptedRows(int first, int last) const
{
    QVector<int> rows;
    rows.reserve(last - first + 1);
    for (int row = first; row <= last; ++row) {
        if (accepts(row))
            rows.append(row);
    }
    return rows;
}

quint16 ProxyModel::idAt(int row) const
{
    return m_model->itemAt(m_rows.at(row))->id();
}

int ProxyModel::lowerBound(int sourceRow) const
{
    return static_cast<int>(std::lower_bound(m_rows.begin(), m_rows.end(), sourceRow) - m_rows.begin());
}

int ProxyModel::rowOf(int id) const
{
    const int sourceRow = m_model && id >= 0 && id < idCount ? m_model->rowOf(static_cast<quint16>(id)) : -1;
    return sourceRow < 0 ? -1 : mapFromSource(m_model->index(sourceRow)).row();
}

QModelIndex ProxyModel::mapToSource(const QModelIndex &proxyIndex) const
{
    return m_model && proxyIndex.isValid() && isRow(proxyIndex.row()) ? m_model->index(m_rows.at(proxyIndex.row()))
                                                                      : QModelIndex();
}

QModelIndex ProxyModel::mapFromSource(const QModelIndex &sourceIndex) const
{
    if (!sourceIndex.isValid())
        return {};
    const int row = lowerBound(sourceIndex.row());
    return isRow(row) && m_rows.at(row) == sourceIndex.row() ? index(row, 0) : QModelIndex();
}

QModelIndex ProxyModel::index(int row, int column, const QModelIndex &parent) const
{
    return !parent.isValid() && isRow(row) && column == 0 ? createIndex(row, column) : QModelIndex();
}

QModelIndex ProxyModel::parent(const QModelIndex &) const
{
    return {};
}

int ProxyModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows.size();
}

int ProxyModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : 1;
}

QVariant ProxyModel::data(const QModelIndex &index, int role) const
{
    if (role == MainModel::selectedRole)
        return isSelected(index.row());
    return QAbstractProxyModel::data(index, role);
}

QHash<int, QByteArray> ProxyModel::roleNames() const
{
    return m_model ? m_model->roleNames() : QHash<int, QByteArray>();
}

int ProxyModel::hiddenCount() const
{
    return m_model ? m_model->rowCount() - m_rows.size() : 0;
}

// Following the source

ProxyModel::Before ProxyModel::before() const
{
    return {m_currentIndex, currentItem(), m_selectedCount, hiddenCount()};
}

void ProxyModel::announce(const Before &before)
{
    announceCurrent(before);
    announceCounts(before);
}

void ProxyModel::announceCurrent(const Before &before)
{
    if (m_currentIndex != before.currentIndex || currentItem() != before.currentItem)
        emit currentIndexChanged(m_currentIndex);
}

void ProxyModel::announceCounts(const Before &before)
{
    if (m_selectedCount != before.selectedCount)
        emit selectedCountChanged(m_selectedCount);
    if (hiddenCount() != before.hiddenCount)
        emit hiddenCountChanged();
}

void ProxyModel::sourceRowsInserted(int first, int last)
{
    const int count = last - first + 1;
    Before old = before();
    old.hiddenCount -= count; // the source has grown already
    const int position = lowerBound(first);
    std::for_each(m_rows.begin() + position, m_rows.end(), [count](int &row) { row += count; });
    insertBlock(position, acceptedRows(first, last));
    announce(old);
}

void ProxyModel::insertBlock(int position, const QVector<int> &sourceRows)
{
    if (sourceRows.isEmpty())
        return;
    beginInsertRows({}, position, position + sourceRows.size() - 1);
    m_rows.insert(position, sourceRows.size(), 0);
    std::copy(sourceRows.begin(), sourceRows.end(), m_rows.begin() + position);
    if (m_currentIndex >= position)
        m_currentIndex += sourceRows.size();
    endInsertRows();
}

void ProxyModel::sourceRowsAboutToBeRemoved(int first, int last)
{
    m_beforeChange = before();
    const int firstRow = lowerBound(first);
    const int lastRow = lowerBound(last + 1) - 1;
    m_removing = firstRow <= lastRow;
    if (!m_removing)
        return;
    beginRemoveRows({}, firstRow, lastRow);
    for (int row = firstRow; row <= lastRow; ++row)
        mark(row, false); // while their ids can still be asked for
}

void ProxyModel::sourceRowsRemoved(int first, int last)
{
    const int firstRow = lowerBound(first);
    const int lastRow = lowerBound(last + 1) - 1;
    const int count = last - first + 1;
    std::for_each(m_rows.begin() + lastRow + 1, m_rows.end(), [count](int &row) { row -= count; });
    if (m_removing) {
        forgetRows(firstRow, lastRow);
        endRemoveRows();
    }
    announce(m_beforeChange);
}

// Takes rows out of the map. The current row follows its song; when that goes, it stays where it is, within the rows.
void ProxyModel::forgetRows(int first, int last)
{
    m_rows.remove(first, last - first + 1);
    if (m_currentIndex > last)
        m_currentIndex -= last - first + 1;
    else if (m_currentIndex >= first)
        m_currentIndex = std::min(first, m_rows.size() - 1);
}

void ProxyModel::hideRow(int row)
{
    beginRemoveRows({}, row, row);
    mark(row, false);
    forgetRows(row, row);
    endRemoveRows();
}

void ProxyModel::sourceDataChanged(int first, int last, const QVector<int> &roles)
{
    const Before old = before();
    for (int sourceRow = first; sourceRow <= last; ++sourceRow) {
        const int row = lowerBound(sourceRow);
        const bool isShown = isRow(row) && m_rows.at(row) == sourceRow;
        if (isShown && accepts(sourceRow))
            emit dataChanged(index(row, 0), index(row, 0), roles);
        else if (isShown)
            hideRow(row);
        else if (accepts(sourceRow))
            insertBlock(row, {sourceRow});
    }
    announce(old);
}

// Before a reset.
void ProxyModel::rememberCurrent()
{
    m_beforeChange = before();
    m_currentIds.clear();
    for (int row = m_currentIndex; isRow(row); ++row)
        m_currentIds.append(idAt(row));
}

// Within a reset: makes the map anew and brings the current row and the selection in line with it.
void ProxyModel::refilter()
{
    m_rows = acceptedRows(0, m_model->rowCount() - 1);
    m_currentIndex = std::min(m_currentIndex, m_rows.size() - 1);
    for (const quint16 id : qAsConst(m_currentIds)) {
        if (const int row = rowOf(id); row >= 0) {
            m_currentIndex = row;
            break;
        }
    }
    dropHiddenMarks();
}

void ProxyModel::setShowFound(bool on)
{
    if (on == m_showFound)
        return;
    const bool hadCurrent = isRow(m_currentIndex);
    if (m_model) {
        rememberCurrent();
        beginResetModel();
    }
    m_showFound = on;
    if (m_model) {
        refilter();
        endResetModel();
        announceCounts(m_beforeChange);
    }
    emit showFoundChanged(on);
    if (hadCurrent && currentItem() == m_beforeChange.currentItem)
        keepCurrentSelected();
    else if (m_model)
        announceCurrent(m_beforeChange);
}

// The focus stays on the same song, which is announced even when its row has kept its number.
void ProxyModel::keepCurrentSelected()
{
    const bool marked = mark(m_currentIndex, true);
    if (marked)
        emit dataChanged(index(m_currentIndex, 0), index(m_currentIndex, 0), {MainModel::selectedRole});
    emit currentIndexChanged(m_currentIndex);
    if (marked)
        emit selectedCountChanged(m_selectedCount);
}

// The current row and the selection

// For the scene.
ModelItem *ProxyModel::itemAt(int row) const
{
    if (!m_model || !isRow(row) || m_rows.at(row) >= m_model->rowCount())
        return nullptr;
    ModelItem *item = m_model->itemAt(m_rows.at(row));
    QQmlEngine::setObjectOwnership(item, QQmlEngine::CppOwnership);
    return item;
}

ModelItem *ProxyModel::currentItem() const
{
    return itemAt(m_currentIndex);
}

ModelItem *ProxyModel::selectedItem() const
{
    if (m_selectedCount != 1)
        return nullptr;
    if (isSelected(m_currentIndex))
        return currentItem();
    const auto isMarked = [this](int sourceRow) {
        return m_selected.testBit(m_model->itemAt(sourceRow)->id());
    };
    const auto selected = std::find_if(m_rows.begin(), m_rows.end(), isMarked);
    return itemAt(static_cast<int>(selected - m_rows.begin()));
}

bool ProxyModel::isSelected(int row) const
{
    return isRow(row) && m_selected.testBit(idAt(row));
}

QVector<quint16> ProxyModel::selectedIds() const
{
    QVector<quint16> ids;
    ids.reserve(m_selectedCount);
    for (int row = 0; row < m_rows.size(); ++row) {
        if (isSelected(row))
            ids.append(idAt(row));
    }
    return ids;
}

// Silently; whether that changed anything.
bool ProxyModel::mark(int row, bool on)
{
    if (isSelected(row) == on || !isRow(row))
        return false;
    m_selected.setBit(idAt(row), on);
    m_selectedCount += on ? 1 : -1;
    return true;
}

void ProxyModel::clearMarks()
{
    m_selected.fill(false);
    m_selectedCount = 0;
}

// Silently.
void ProxyModel::dropHiddenMarks()
{
    QBitArray shown(idCount);
    for (int row = 0; row < m_rows.size(); ++row)
        shown.setBit(idAt(row));
    m_selected &= shown;
    m_selectedCount = m_selected.count(true);
}

// After changes of the selection: has the rows painted anew.
void ProxyModel::selectionChanged(int countBefore)
{
    if (!m_rows.isEmpty())
        emit dataChanged(index(0, 0), index(m_rows.size() - 1, 0), {MainModel::selectedRole});
    if (m_selectedCount != countBefore)
        emit selectedCountChanged(m_selectedCount);
}

void ProxyModel::selectRows(int first, int last, bool on)
{
    const int countBefore = m_selectedCount;
    bool changed = false;
    for (int row = first; row <= last; ++row)
        changed = mark(row, on) || changed;
    if (changed)
        selectionChanged(countBefore);
}

void ProxyModel::setCurrentIndex(int n)
{
    n = std::max(n, -1);
    if (n == m_currentIndex || n >= m_rows.size())
        return;
    m_currentIndex = n;
    m_anchorId = -1;
    emit currentIndexChanged(n);
    const int countBefore = m_selectedCount;
    clearMarks();
    mark(n, true);
    selectionChanged(countBefore);
}

void ProxyModel::extendSelection(int n)
{
    if (!isRow(n))
        return;
    int anchor = rowOf(m_anchorId);
    if (anchor < 0)
        anchor = std::max(m_currentIndex, 0);
    moveCurrent(n);
    m_anchorId = idAt(anchor);
    const int countBefore = m_selectedCount;
    clearMarks();
    for (int row = std::min(anchor, n); row <= std::max(anchor, n); ++row)
        mark(row, true);
    selectionChanged(countBefore);
}

void ProxyModel::moveCurrent(int n)
{
    m_anchorId = -1;
    if (!isRow(n) || n == m_currentIndex)
        return;
    m_currentIndex = n;
    emit currentIndexChanged(n);
}

void ProxyModel::toggleCurrent()
{
    m_anchorId = -1;
    selectRows(m_currentIndex, m_currentIndex, !isSelected(m_currentIndex));
}

bool ProxyModel::itemClicked(int n)
{
    m_anchorId = -1;
    const Qt::KeyboardModifiers held = QGuiApplication::keyboardModifiers();
    if (held == Qt::NoModifier) {
        setCurrentIndex(n);
        if (n < 0)
            selectRows(0, m_rows.size() - 1, false);
        return true;
    }
    if (held & Qt::ControlModifier)
        selectRows(n, n, !isSelected(n));
    else if ((held & Qt::ShiftModifier) && m_currentIndex >= 0 && m_currentIndex != n)
        selectRows(std::min(n, m_currentIndex), std::max(n, m_currentIndex), true);
    return false;
}

void ProxyModel::selectAll()
{
    selectRows(0, m_rows.size() - 1, true);
}

void ProxyModel::removeInvalidSelections()
{
    const int countBefore = m_selectedCount;
    dropHiddenMarks();
    if (m_selectedCount != countBefore)
        emit selectedCountChanged(m_selectedCount);
}

// Removing

void ProxyModel::removeSelected()
{
    removeSongs(selectedIds());
}

void ProxyModel::removeSongs(const QVector<quint16> &ids)
{
    if (!m_model)
        return;
    QVector<int> sourceRows;
    sourceRows.reserve(ids.size());
    for (const quint16 id : ids) {
        if (const int row = m_model->rowOf(id); row >= 0)
            sourceRows.append(row);
    }
    std::sort(sourceRows.begin(), sourceRows.end());
    removeSourceRows(sourceRows);
}

void ProxyModel::removeAll()
{
    if (!m_model || m_rows.size() != m_model->rowCount()) {
        removeSourceRows(m_rows);
        return;
    }
    m_model->removeAll();
    emit currentIndexChanged(m_currentIndex);
    emit selectedCountChanged(m_selectedCount);
}

void ProxyModel::removeSourceRows(const QVector<int> &rows)
{
    if (!m_model)
        return;
    m_model->removeScattered(rows);
    emit currentIndexChanged(m_currentIndex);
    emit selectedCountChanged(m_selectedCount);
}

void ProxyModel::locate(int n) const
{
    if (isRow(n))
        m_model->locate(m_rows.at(n));
}
