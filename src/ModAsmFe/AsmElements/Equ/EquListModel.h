#pragma once

#include <QAbstractTableModel>
#include <QFont>
#include <QString>
#include <QVector>

namespace nsModAsmFe {

/// The lines of the table of constants: a name with its namespace and a value, each made into text when it is looked at.
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
    /// Replaces all lines. A view keeps place and selection only where no line has come or gone.
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
