#include "ProcSimCoreReg.h"

#include "ProcSimCoreData.h"
#include "ProcSimRegPage.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace nsProc {

ProcSimCoreReg::ProcSimCoreReg(std::shared_ptr<ProcSimCoreData> data, const std::function<QString(int)>& nameOf,
                               QWidget* parent)
    : QWidget(parent)
    , m_data(std::move(data))
    , m_stack(new QStackedWidget(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    if (m_data->bankCount() > 1) {
        auto* line = new QHBoxLayout;
        auto* title = new QLabel(tr("Bank:"), this);
        m_bank = new QComboBox(this);
        m_bank->setObjectName(QStringLiteral("procSimBank"));
        m_bank->setToolTip(tr("Register bank"));
        m_bank->addItem(QStringLiteral("A"), 0);
        m_bank->addItem(QStringLiteral("B"), 1);
        title->setBuddy(m_bank);
        line->addWidget(title);
        line->addWidget(m_bank);
        line->addStretch(1);
        layout->addLayout(line);
        connect(m_bank, QOverload<int>::of(&QComboBox::activated), this, [this] {
            m_data->setBank(m_bank->currentData().toInt());
            refresh();
        });
    }
    layout->addWidget(m_stack);
    for (int bank = 0; bank < m_data->bankCount(); ++bank)
        m_stack->addWidget(new ProcSimRegPage(m_data, bank, nameOf, m_stack));
    refresh();
}

bool ProcSimCoreReg::setReg(int index, const QString& alias, int value)
{
    const bool success = m_data->setReg(index, alias, value);
    refresh();
    return success;
}

bool ProcSimCoreReg::reg(int index, const QString& alias, int* value)
{
    const bool success = m_data->reg(index, alias, value);
    refresh();
    return success;
}

void ProcSimCoreReg::setBase(int base)
{
    for (int bank = 0; bank < m_stack->count(); ++bank)
        static_cast<ProcSimRegPage*>(m_stack->widget(bank))->setBase(base);
}

void ProcSimCoreReg::refresh()
{
    const int bank = m_data->bank();
    if (m_bank != nullptr && m_bank->currentIndex() != bank)
        m_bank->setCurrentIndex(bank);
    if (m_stack->currentIndex() != bank)
        m_stack->setCurrentIndex(bank);
    static_cast<ProcSimRegPage*>(m_stack->currentWidget())->refresh();
}

} // namespace nsProc
