#include "PrjMngrOptions.h"

#include "MyFieldTitle.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QGridLayout>
#include <QResizeEvent>

namespace nsModPrj {

namespace {

const int gap = 8;

} // namespace

PrjMngrOptions::PrjMngrOptions(QWidget* parent)
    : QWidget(parent)
    , m_processor(new QComboBox(this))
    , m_source(
          addCheck("prjMngrNewSource", tr("First source main.psm"),
                   tr("Writes a whole small program for the processor; a file main.psm that exists is taken as it is")))
    , m_hex(addCheck("prjMngrNewHex", tr("Hex file"), tr("The program as one word a line")))
    , m_mem(addCheck("prjMngrNewMem", tr("Mem file"), tr("The program as blocks of words with their addresses")))
    , m_vhdl(addCheck("prjMngrNewVhdl", tr("VHDL file"),
                      tr("The program memory in VHDL; a copy of the template goes beside the project")))
    , m_verilog(addCheck("prjMngrNewVerilog", tr("Verilog file"),
                         tr("The program memory in Verilog; a copy of the template goes beside the project")))
    , m_vhdlTemplate(new QComboBox(this))
    , m_verilogTemplate(new QComboBox(this))
{
    setObjectName(QStringLiteral("prjMngrOptions"));
    m_processor->setObjectName(QStringLiteral("prjMngrNewProcessor"));
    m_processor->addItem(tr("Choose later"), QString());
    for (const QString& name : NewProject::processors())
        m_processor->addItem(name, name);
    m_processor->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_processor->setMinimumContentsLength(16);
    m_processor->setToolTip(tr("Processor that the program is for"));
    m_processor->setAccessibleName(tr("Processor"));
    addHdl(m_vhdl, m_vhdlTemplate, "prjMngrNewVhdlTemplate", QStringLiteral("vhd"));
    addHdl(m_verilog, m_verilogTemplate, "prjMngrNewVerilogTemplate", QStringLiteral("v"));

    m_processorTitle = new MyFieldTitle(tr("Processor:"), this);
    m_processorTitle->setBuddy(m_processor);
    m_outputsTitle = new MyFieldTitle(tr("Outputs:"), this);
    m_layout = new QGridLayout(this);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(gap);
    m_layout->setColumnStretch(2, 1);
    arrange(false);
    QWidget* const order[] = {m_processor, m_source,       m_hex,     m_mem,
                              m_vhdl,      m_vhdlTemplate, m_verilog, m_verilogTemplate};
    for (std::size_t i = 1; i < std::size(order); ++i)
        setTabOrder(order[i - 1], order[i]);

    connect(m_processor, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &PrjMngrOptions::takeProcessor);
    connect(m_source, &QCheckBox::clicked, this, [this] { m_sourceTouched = true; });
    for (QCheckBox* check : {m_source, m_hex, m_mem, m_vhdl, m_verilog})
        connect(check, &QCheckBox::toggled, this, &PrjMngrOptions::changed);
    for (QComboBox* box : {m_vhdlTemplate, m_verilogTemplate})
        connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &PrjMngrOptions::changed);
}

/// @param narrow titles stand above their fields, where a page has no room for them beside each other
void PrjMngrOptions::arrange(bool narrow)
{
    m_isNarrow = narrow;
    const int titleRows = narrow ? 1 : 0;
    const int column = narrow ? 0 : 1;
    // In line with the fields above.
    m_layout->setColumnMinimumWidth(0, narrow ? 0 : titleWidth());
    int row = 0;
    m_layout->addWidget(m_processorTitle, row, 0, 1, narrow ? 3 : 1);
    row += titleRows;
    m_layout->addWidget(m_processor, row++, column, 1, narrow ? 3 : 2, Qt::AlignLeft);
    m_layout->addWidget(m_source, row++, column, 1, narrow ? 3 : 2);
    m_layout->addWidget(m_outputsTitle, row, 0, 1, narrow ? 3 : 1);
    row += titleRows;
    m_layout->addWidget(m_hex, row++, column);
    m_layout->addWidget(m_mem, row++, column);
    const int span = narrow ? 2 : 1;
    m_layout->addWidget(m_vhdl, row, column);
    m_layout->addWidget(m_vhdlTemplate, row++, column + 1, 1, span);
    m_layout->addWidget(m_verilog, row, column);
    m_layout->addWidget(m_verilogTemplate, row++, column + 1, 1, span);
}

int PrjMngrOptions::titleWidth() const
{
    return MyFieldTitle(tr("Project title:")).sizeHint().width();
}

/// What the fields need without their titles.
int PrjMngrOptions::fieldWidth() const
{
    int check = 0;
    for (const QCheckBox* box : {m_hex, m_mem, m_vhdl, m_verilog})
        check = qMax(check, box->minimumSizeHint().width());
    const int box = qMax(m_vhdlTemplate->minimumSizeHint().width(), m_verilogTemplate->minimumSizeHint().width());
    return qMax(check + gap + box, qMax(m_processor->minimumSizeHint().width(), m_source->minimumSizeHint().width()));
}

QSize PrjMngrOptions::minimumSizeHint() const
{
    return {fieldWidth(), QWidget::minimumSizeHint().height()};
}

void PrjMngrOptions::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    const bool narrow = width() < titleWidth() + gap + fieldWidth();
    if (narrow != m_isNarrow)
        arrange(narrow);
}

QCheckBox* PrjMngrOptions::addCheck(const char* name, const QString& text, const QString& toolTip)
{
    auto* check = new QCheckBox(text, this);
    check->setObjectName(QLatin1String(name));
    check->setToolTip(toolTip);
    // Not wider than its text, which the focus frame surrounds.
    check->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    return check;
}

void PrjMngrOptions::addHdl(QCheckBox* check, QComboBox* box, const char* name, const QString& suffix)
{
    box->setObjectName(QLatin1String(name));
    for (const QString& path : NewProject::templates(suffix))
        box->addItem(QFileInfo(path).fileName(), path);
    box->setToolTip(tr("Template that is copied beside the project"));
    box->setAccessibleName(tr("Template of the %1").arg(check->text()));
    // In a small window the page must not become wider than the window lets it be.
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(6);
    box->setEnabled(false);
    if (box->count() == 0) {
        check->setEnabled(false);
        check->setToolTip(tr("The templates that ship with the program were not found"));
    }
    connect(check, &QCheckBox::toggled, box, &QWidget::setEnabled);
}

/// Whoever has chosen a processor can begin with a program for it.
void PrjMngrOptions::takeProcessor()
{
    if (!m_sourceTouched)
        m_source->setChecked(m_processor->currentIndex() > 0);
    emit changed();
}

NewProjectOptions PrjMngrOptions::options() const
{
    NewProjectOptions options;
    options.processor = m_processor->currentData().toString();
    options.firstSource = m_source->isChecked();
    options.hex = m_hex->isChecked();
    options.mem = m_mem->isChecked();
    if (m_vhdl->isChecked())
        options.vhdlTemplate = m_vhdlTemplate->currentData().toString();
    if (m_verilog->isChecked())
        options.verilogTemplate = m_verilogTemplate->currentData().toString();
    return options;
}

void PrjMngrOptions::clear()
{
    m_sourceTouched = false;
    m_processor->setCurrentIndex(0);
    for (QCheckBox* check : {m_source, m_hex, m_mem, m_vhdl, m_verilog})
        check->setChecked(false);
}

} // namespace nsModPrj
