#include "ProcSimMemModel.h"

#include "Colors.h"
#include "ProcSimIOMem.h"

#include <QColor>
#include <QPixmap>

namespace nsProc {

ProcSimMemModel::ProcSimMemModel(ProcSimIOMem* device, QObject* parent)
    : QAbstractTableModel(parent)
    , m_device(device)
    , m_rows(device->size())
    , m_base(device->base())
{
}

void ProcSimMemModel::refresh()
{
    if (m_rows != m_device->size() || m_base != m_device->base()) {
        beginResetModel();
        m_rows = m_device->size();
        m_base = m_device->base();
        m_touchedRow = m_device->touchedRow();
        endResetModel();
        return;
    }
    // A program can have written to any word since the last call. Only the visible ones are painted again.
    if (m_rows > 0)
        emit dataChanged(index(0, 0), index(m_rows - 1, 0));
    const int touched = m_device->touchedRow();
    if (touched == m_touchedRow)
        return;
    const int before = m_touchedRow;
    m_touchedRow = touched;
    for (const int row : {before, touched}) {
        if (row >= 0)
            emit headerDataChanged(Qt::Vertical, row, row);
    }
}

int ProcSimMemModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_rows;
}

int ProcSimMemModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : 1;
}

QVariant ProcSimMemModel::data(const QModelIndex& index, int role) const
{
    // The device can have shrunk since the last refresh.
    if (!index.isValid() || index.row() >= m_device->size())
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return ProcSimIODevice::text(m_device->word(index.row()), m_base);
    case Qt::TextAlignmentRole:
        return int(Qt::AlignRight | Qt::AlignVCenter);
    case Qt::BackgroundRole:
        return m_device->isWritten(index.row()) ? QVariant(Colors::of(Colors::eWritten)) : QVariant();
    case Qt::ToolTipRole:
        return tr("Value");
    default:
        return {};
    }
}

bool ProcSimMemModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid() || index.row() >= m_device->size() || role != Qt::EditRole)
        return false;
    bool ok = false;
    const qlonglong number = value.toString().trimmed().toLongLong(&ok, m_base);
    if (!ok)
        return false;
    m_device->setWord(index.row(), int(qBound(0LL, number, qlonglong(ProcSimIODevice::maxValue))));
    emit dataChanged(index, index);
    return true;
}

Qt::ItemFlags ProcSimMemModel::flags(const QModelIndex& index) const
{
    return QAbstractTableModel::flags(index) | Qt::ItemIsEditable;
}

QVariant ProcSimMemModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Vertical)
        return {};
    if (role == Qt::DisplayRole)
        return ProcSimIODevice::text(static_cast<unsigned int>(section), m_base);
    if (role == Qt::DecorationRole) {
        // Rows without the mark have an empty pixmap of the same size, so that no header moves.
        QPixmap mark(5, 5);
        mark.fill(section == m_touchedRow ? Colors::of(Colors::eChanged) : QColor(0, 0, 0, 0));
        return mark;
    }
    return {};
}

} // namespace nsProc
