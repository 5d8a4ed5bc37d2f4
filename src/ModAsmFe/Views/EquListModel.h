#pragma once

#include <QAbstractTableModel>
#include <QFont>
#include <QString>
#include <QVector>

namespace nsModAsmFe {

/// The lines of the table of constants: a name with its namespace and a value, each converted to text when it is
/// displayed.
class EquListModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum eColumn_t { columnName, columnValue, columnCount_ };

    struct sRow_t
    {
        QString nameSpace;
        QString name;
        int value = 0;

        bool operator==(const sRow_t& other) const
        {
            return value == other.value && name == other.name && nameSpace == other.nameSpace;
        }
    };

    using QAbstractTableModel::QAbstractTableModel;

    const QVector<sRow_t>& rows() const { return m_rows; }
    /// Replaces all lines. A view keeps scroll position and selection only if no line was added or removed.
    void setRows(QVector<sRow_t> rows);
    void appendRow(const sRow_t& row);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    /// Font of the values.
    void setNumberFont(const QFont& font) { m_numberFont = font; }

private:
    QVector<sRow_t> m_rows;
    QFont m_numberFont;
};

} // namespace nsModAsmFe
