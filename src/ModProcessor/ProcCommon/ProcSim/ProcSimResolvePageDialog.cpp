#include "ProcSimResolvePageDialog.h"

#include "MyButtonOk.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace nsProc {

ProcSimResolvePageDialog::ProcSimResolvePageDialog(int pageCount, QWidget* parent)
    : QDialog(parent)
    , m_list(new QListWidget(this))
{
    setWindowTitle(tr("Can not resolve page..."));
    for (int page = 0; page < pageCount; ++page)
        m_list->addItem(tr("Page %1").arg(page));
    m_list->setCurrentRow(0);
    auto* button = new MyButtonOk(this);
    button->setDefault(true);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(button);
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(8);
    layout->addWidget(
        new QLabel(tr("Since you are using pages and the program counter <br/>points to an instruction within the "
                      "shared range, <br/>the simulator has no information about the current <br/>page selection."),
                   this));
    layout->addWidget(new QLabel(tr("Please select a page from list below."), this));
    layout->addWidget(m_list, 1);
    layout->addLayout(buttons);
    connect(m_list, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
    connect(button, &QPushButton::clicked, this, &QDialog::accept);
    m_list->setFocus();
}

int ProcSimResolvePageDialog::selectedRow() const
{
    return std::max(m_list->currentRow(), 0);
}

} // namespace nsProc
