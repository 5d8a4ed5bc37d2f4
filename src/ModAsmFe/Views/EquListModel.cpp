#include "EquListModel.h"

#include "SymbolHash.h"

namespace nsModAsmFe {

void EquListModel::setRows(QVector<sRow_t> rows)
{
    // Usually the constants are the same, and some have other values.
    if (rows.size() == m_rows.size() && !rows.isEmpty()) {
        m_rows.swap(rows);
        emit dataChanged(index(0, 0), index(m_rows.size() - 1, columnCount_ - 1));
        return;
    }
    beginResetModel();
    m_rows.swap(rows);
    endResetModel();
}

void EquListModel::appendRow(const sRow_t& row)
{
    beginInsertRows(QModelIndex(), m_rows.size(), m_rows.size());
    m_rows.append(row);
    endInsertRows();
}

int EquListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_rows.size();
}

int EquListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : columnCount_;
}

QVariant EquListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_rows.size())
        return QVariant();
    const sRow_t& row = m_rows.at(index.row());
    if (index.column() == columnName) {
        // Long names are elided in a narrow dock.
        return role == Qt::DisplayRole || role == Qt::ToolTipRole ? qualifiedName(row.nameSpace, row.name) : QVariant();
    }
    switch (role) {
    case Qt::DisplayRole:
        return QStringLiteral("0x%1").arg(uint(row.value), 0, 16);
    case Qt::FontRole:
        return m_numberFont;
    case Qt::TextAlignmentRole:
        return int(Qt::AlignRight | Qt::AlignVCenter);
    default:
        return QVariant();
    }
}

QVariant EquListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return QVariant();
    if (role == Qt::DisplayRole)
        return section == columnName ? tr("Name") : tr("Value");
    if (role == Qt::TextAlignmentRole && section == columnValue)
        return int(Qt::AlignRight | Qt::AlignVCenter);
    return QVariant();
}

} // namespace nsModAsmFe
