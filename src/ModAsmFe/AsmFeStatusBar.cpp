#include "AsmFeStatusBar.h"

#include "MyStatusBarTitle.h"

#include <QHBoxLayout>
#include <QLabel>

namespace nsModAsmFe {

AsmFeStatusBar::AsmFeStatusBar(QWidget* parent)
    : QWidget(parent)
    , m_name(new QLabel(this))
{
    auto* title = new MyStatusBarTitle(tr("Processor:"), this);
    m_name->setObjectName("asmFeStatusBarProcessor");
    setToolTip(tr("Processor of the project"));

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 0, 8, 0);
    layout->setSpacing(8);
    layout->addWidget(title);
    layout->addWidget(m_name);
    setProcessorName(QString());
}

void AsmFeStatusBar::setProcessorName(QString name)
{
    m_processorName = name;
    m_name->setText(name);
}

} // namespace nsModAsmFe
