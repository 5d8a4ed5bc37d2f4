#pragma once

#include <QWidget>

#include <functional>
#include <memory>

class QComboBox;
class QStackedWidget;

namespace nsProc {

class ProcSimCoreData;
class ProcSimRegPage;

/// The registers of a core: one page, or one a bank with a choice of the bank.
class ProcSimCoreReg : public QWidget
{
    Q_OBJECT

public:
    /// @param nameOf name of the register with a number
    ProcSimCoreReg(std::shared_ptr<ProcSimCoreData> data, const std::function<QString(int)>& nameOf,
                   QWidget* parent = nullptr);

    /// The program sets a register of the selected bank.
    /// @return false, with nothing changed, for an index not below the number of registers
    bool setReg(int index, const QString& alias, int value);
    /// The program reads a register of the selected bank.
    /// @return false, with nothing changed, for an index not below the number of registers
    bool reg(int index, const QString& alias, int* value);
    /// @param base 8, 10 or 16
    void setBase(int base);
    /// Shows what has changed in the data.
    void refresh();

private:
    std::shared_ptr<ProcSimCoreData> m_data;
    QStackedWidget* m_stack;
    QComboBox* m_bank = nullptr; ///< null for a core without banks
};

} // namespace nsProc
