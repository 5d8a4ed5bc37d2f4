#pragma once

#include <QAbstractTableModel>

namespace nsProc {

class ProcSimIOMem;

/// The words of a memory as one column; the row headers are addresses in the base of the device.
class ProcSimMemModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// @param device not owned
    ProcSimMemModel(ProcSimIOMem* device, QObject* parent);

    /// Emits the signals for what has changed.
    void refresh();
    int base() const { return m_base; }

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    ProcSimIOMem* m_device;
    int m_rows;
    int m_base;
    int m_touchedRow = -1;
};

} // namespace nsProc
