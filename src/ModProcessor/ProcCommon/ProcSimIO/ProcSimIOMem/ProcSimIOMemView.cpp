#include "ProcSimIOMemView.h"

#include "Colors.h"
#include "HelpRef.h"
#include "ProcSimEdtMemArray.h"
#include "ProcSimEdtNumeric.h"
#include "ProcSimFont.h"
#include "ProcSimIOMem.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRegExp>
#include <QRegExpValidator>
#include <QToolButton>
#include <QVBoxLayout>

namespace nsProc {

ProcSimIOMemView::ProcSimIOMemView(ProcSimIOMem* device)
    : ProcSimIODeviceView(device, Colors::eKindMemory, tr("Memory"))
    , m_mem(device)
    , m_access(new QLabel(this))
    , m_lastAddr(new ProcSimEdtNumeric(this))
    , m_lastValue(new ProcSimEdtNumeric(this))
    , m_arrayPart(new QWidget(this))
    , m_size(new QLineEdit(m_arrayPart))
    , m_array(new ProcSimEdtMemArray(device, m_arrayPart))
    , m_expand(addButton(QStringLiteral("procSimIOExpand")))
{
    HelpRef::setWhatsThis(this,
                          tr("A memory: words of 8 bits at consecutive ports. The list shows them by their ports; a "
                             "double click changes one."),
                          QStringLiteral("pageId://simulatorDevices#device-memory"));
    addLastAccess();
    addArray();
    connect(m_size, &QLineEdit::editingFinished, this, &ProcSimIOMemView::takeSize);
    connect(m_expand, &QToolButton::clicked, this, [this] {
        m_mem->setExpanded(!m_mem->isExpanded());
        refresh();
    });
}

void ProcSimIOMemView::addLastAccess()
{
    m_access->setObjectName(QStringLiteral("procSimIOAccess"));
    m_access->setToolTip(tr("Last access: rdFrom for a read, wrTo for a write"));
    m_lastAddr->setToolTip(tr("Last address"));
    m_lastValue->setToolTip(tr("Last value"));
    auto* line = new QHBoxLayout;
    line->setSpacing(8);
    line->addStretch(1);
    line->addWidget(m_access);
    for (ProcSimEdtNumeric* field : {m_lastAddr, m_lastValue}) {
        field->setRange(0, ProcSimIODevice::maxValue);
        field->setReadOnly(true);
        field->setFocusPolicy(Qt::NoFocus);
        field->clear();
        line->addWidget(field);
    }
    body()->addLayout(line);
}

void ProcSimIOMemView::addArray()
{
    m_arrayPart->setObjectName(QStringLiteral("procSimIOArray"));
    m_size->setObjectName(QStringLiteral("procSimIOSize"));
    m_size->setToolTip(tr("Size in words, decimal, 1 to %1").arg(ProcSimIOMem::maxUserSize));
    m_size->setFont(monospaceFont());
    m_size->setAlignment(Qt::AlignRight);
    m_size->setFixedWidth(72);
    m_size->setValidator(new QRegExpValidator(QRegExp(QStringLiteral("[0-9]{1,8}")), m_size));
    auto* title = new QLabel(tr("Size:"), m_arrayPart);
    title->setObjectName(QStringLiteral("procSimIOTitle"));
    title->setBuddy(m_size);
    title->setToolTip(m_size->toolTip());
    auto* sizeLine = new QHBoxLayout;
    sizeLine->setSpacing(8);
    sizeLine->addWidget(title);
    sizeLine->addWidget(m_size);
    auto* unit = new QLabel(tr("words"), m_arrayPart);
    unit->setObjectName(QStringLiteral("procSimIOTitle"));
    sizeLine->addWidget(unit);
    sizeLine->addStretch(1);
    auto* layout = new QVBoxLayout(m_arrayPart);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addLayout(sizeLine);
    layout->addWidget(m_array);
    m_arrayPart->hide();
    body()->addWidget(m_arrayPart);
}

void ProcSimIOMemView::takeSize()
{
    m_mem->setMemSizeFromGui(m_size->text());
    m_shownSize = -1; // the text can differ from the size that is used
    refresh();
}

void ProcSimIOMemView::showLastAccess()
{
    const struct
    {
        ProcSimEdtNumeric* field;
        int value;
    } fields[] = {{m_lastAddr, m_mem->lastAddr()}, {m_lastValue, m_mem->lastValue()}};
    for (const auto& [field, value] : fields) {
        // Setting the base also makes an empty field show its number again.
        if (field->base() != m_mem->base() || field->text().isEmpty())
            field->setBase(m_mem->base());
        if (value < 0)
            field->clear();
        else
            field->setValue(value);
        field->setHighlightEn(m_mem->isHighlighted());
    }
    const ProcSimIOMem::eAccess_t access = m_mem->lastAccess();
    m_access->setText(access == ProcSimIOMem::eAccessNone ? QString()
                      : access == ProcSimIOMem::eAccessRd ? QStringLiteral("rdFrom")
                                                          : QStringLiteral("wrTo"));
}

void ProcSimIOMemView::showDevice()
{
    showLastAccess();
    if (m_expand->toolTip().isEmpty() || m_arrayPart->isHidden() == m_mem->isExpanded())
        showExpanded(m_expand, m_mem->isExpanded());
    m_arrayPart->setVisible(m_mem->isExpanded());
    if (m_mem->size() != m_shownSize) {
        m_shownSize = m_mem->size();
        m_size->setText(QString::number(m_shownSize));
    }
    if (m_mem->isExpanded())
        m_array->refresh();
}

} // namespace nsProc
