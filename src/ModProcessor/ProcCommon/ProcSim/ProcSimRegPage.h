#pragma once

#include <QVector>
#include <QWidget>

#include <functional>
#include <memory>

class QLabel;

namespace nsProc {

class ProcSimCoreData;
class ProcSimEdtNumeric;

/// The registers of one bank: name, value and the name by which the program last called the register.
class ProcSimRegPage : public QWidget
{
    Q_OBJECT

public:
    /// @param nameOf name of the register with a number
    ProcSimRegPage(std::shared_ptr<ProcSimCoreData> data, int bank, const std::function<QString(int)>& nameOf,
                   QWidget* parent = nullptr);

    void setBase(int base);
    /// Shows what has changed in the data.
    void refresh();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    struct sRow_t
    {
        QString name;
        ProcSimEdtNumeric* value;
        QLabel* alias;
        QString shownAlias;
    };

    /// The alias of the register; empty if it equals the name.
    static QString secondName(const sRow_t& row);
    static void showAlias(const sRow_t& row);

    std::shared_ptr<ProcSimCoreData> m_data;
    int m_bank;
    QVector<sRow_t> m_rows;
};

} // namespace nsProc
