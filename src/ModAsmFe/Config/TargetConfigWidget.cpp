#include "TargetConfigWidget.h"

#include "MyFieldTitle.h"
#include "MyFileSelectOpen.h"
#include "MyFileSelectSave.h"
#include "ShippedFolder.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>

namespace nsModAsmFe {

TargetConfigWidget::TargetConfigWidget(QWidget* parent)
    : QWidget(parent)
    , m_layout(new QGridLayout(this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setHorizontalSpacing(8);
    m_layout->setVerticalSpacing(8);
    m_layout->setColumnStretch(1, 1);
}

bool TargetConfigWidget::isEnabledOutput() const
{
    return m_enable->isChecked();
}

void TargetConfigWidget::setLabelWidth(int width)
{
    m_layout->setColumnMinimumWidth(0, width);
}

void TargetConfigWidget::addField(const QString& title, QWidget* field, const QString& toolTip)
{
    auto* label = new MyFieldTitle(title, this);
    label->setBuddy(field);
    label->setToolTip(toolTip);
    field->setToolTip(toolTip);
    const int row = m_layout->rowCount();
    m_layout->addWidget(label, row, 0);
    // The frame of the focus goes around the mark.
    if (qobject_cast<QCheckBox*>(field) != nullptr)
        m_layout->addWidget(field, row, 1, Qt::AlignLeft | Qt::AlignVCenter);
    else
        m_layout->addWidget(field, row, 1);
}

void TargetConfigWidget::addEnable(const QString& toolTip)
{
    m_enable = new QCheckBox(this);
    m_enable->setObjectName(QStringLiteral("targetEnable"));
    addField(tr("Enable:"), m_enable, toolTip);
    connect(m_enable, &QCheckBox::toggled, this, &TargetConfigWidget::updateState);
}

void TargetConfigWidget::addOutputFile(const QString& title, const QString& filter, const QString& suffix)
{
    m_outputFile = new MyFileSelectSave(this);
    m_outputFile->setObjectName(QStringLiteral("targetOutputFile"));
    m_outputFile->setWindowTitle(title);
    m_outputFile->setNameFilters({filter, tr("Any files(*)")});
    m_outputFile->setDefaultSuffix(suffix);
    m_outputFile->setDescription(tr("File that a run writes"));
    addField(tr("Output file:"), m_outputFile, QString());
    connect(m_outputFile, &MyFileSelectSave::fileValidChanged, this, &TargetConfigWidget::updateState);
}

void TargetConfigWidget::addHint()
{
    m_hint = new QLabel(this);
    m_hint->setObjectName(QStringLiteral("targetHint"));
    m_hint->setWordWrap(true);
    m_hint->hide();
    m_layout->addWidget(m_hint, m_layout->rowCount(), 1);
}

void TargetConfigWidget::setConfig(const TargetConfig* config, const QString& prjDir)
{
    m_enable->setChecked(config->en);
    m_outputFile->setFile(config->outputFile, prjDir);
    updateState();
}

void TargetConfigWidget::config(TargetConfig* config) const
{
    config->en = m_enable->isChecked();
    config->outputFile = m_outputFile->file();
}

QString TargetConfigWidget::problem() const
{
    if (m_outputFile->file().isEmpty())
        return tr("No output file is given: nothing will be written.");
    if (!m_outputFile->isValid())
        return tr("The folder of the output file does not exist: nothing can be written.");
    return QString();
}

void TargetConfigWidget::updateState()
{
    const bool enabled = m_enable->isChecked();
    for (int i = 0; i < m_layout->count(); ++i) {
        QWidget* widget = m_layout->itemAt(i)->widget();
        auto* label = qobject_cast<MyFieldTitle*>(widget);
        if (widget != m_enable && widget != m_hint && (label == nullptr || label->buddy() != m_enable))
            widget->setEnabled(enabled);
    }
    const QString text = enabled && m_outputFile != nullptr ? problem() : QString();
    m_hint->setText(text);
    m_hint->setVisible(!text.isEmpty());
    emit changed();
}

TargetHexConfigWidget::TargetHexConfigWidget(QWidget* parent)
    : TargetConfigWidget(parent)
{
    addEnable(tr("Write the instruction memory as a hex file"));
    addOutputFile(tr("Select hex output file"), tr("Hex files(*.hex)"), QStringLiteral("hex"));
    addHint();
}

TargetMemConfigWidget::TargetMemConfigWidget(QWidget* parent)
    : TargetConfigWidget(parent)
    , m_gapStuffing(new QCheckBox(this))
{
    m_gapStuffing->setObjectName(QStringLiteral("targetGapStuffing"));
    addEnable(tr("Write the instruction memory as a mem file"));
    addOutputFile(tr("Select mem target file"), tr("Mem files(*.mem)"), QStringLiteral("mem"));
    addField(tr("Gap stuffing enable:"), m_gapStuffing, tr("Write words that nothing was assembled to, too"));
    addHint();
}

void TargetMemConfigWidget::setConfig(const TargetConfig* config, const QString& prjDir)
{
    m_gapStuffing->setChecked(config->gapStuffingEn);
    TargetConfigWidget::setConfig(config, prjDir);
}

void TargetMemConfigWidget::config(TargetConfig* config) const
{
    TargetConfigWidget::config(config);
    config->gapStuffingEn = m_gapStuffing->isChecked();
}

TargetImageConfigWidget::TargetImageConfigWidget(const QString& name, const QString& filter, const QString& suffix,
                                                 const QStringList& layouts, QWidget* parent)
    : TargetConfigWidget(parent)
    , m_wordWidth(new QSpinBox(this))
{
    addEnable(tr("Write the instruction memory as a file of this kind: %1").arg(name));
    addOutputFile(tr("Select %1 output file").arg(name), filter, suffix);
    m_wordWidth->setObjectName(QStringLiteral("targetWordWidth"));
    m_wordWidth->setRange(1, TargetFile::maxWordWidth);
    m_wordWidth->setSuffix(tr(" bits"));
    m_wordWidth->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    addField(tr("Word width:"), m_wordWidth, tr("Bits of a word; an instruction has 18"));
    if (!layouts.isEmpty()) {
        m_layouts = new QComboBox(this);
        m_layouts->setObjectName(QStringLiteral("targetLayout"));
        m_layouts->addItems(layouts);
        addField(tr("Layout:"), m_layouts, tr("How the words lie in the file"));
    }
    addHint();
}

void TargetImageConfigWidget::setConfig(const TargetConfig* config, const QString& prjDir)
{
    m_wordWidth->setValue(config->wordWidth);
    if (m_layouts != nullptr)
        m_layouts->setCurrentIndex(config->layout);
    TargetConfigWidget::setConfig(config, prjDir);
}

void TargetImageConfigWidget::config(TargetConfig* config) const
{
    TargetConfigWidget::config(config);
    config->wordWidth = m_wordWidth->value();
    if (m_layouts != nullptr && m_layouts->currentIndex() >= 0)
        config->layout = m_layouts->currentIndex();
}

TargetHdlConfigWidget::TargetHdlConfigWidget(const QString& language, const QString& filter, const QString& suffix,
                                             QWidget* parent)
    : TargetConfigWidget(parent)
    , m_entityName(new QLineEdit(this))
    , m_templateFile(new MyFileSelectOpen(this))
{
    m_entityName->setObjectName(QStringLiteral("targetEntityName"));
    m_templateFile->setObjectName(QStringLiteral("targetTemplateFile"));
    m_templateFile->setWindowTitle(tr("Select %1 template file").arg(language));
    m_templateFile->setNameFilters({filter, tr("Any files(*)")});
    m_templateFile->setDefaultSuffix(suffix);
    m_templateFile->setDescription(tr("File that the contents are filled into"));
    m_suffix = suffix;
    m_shipped = ShippedFolder::find(ShippedFolder::programDir(), QStringLiteral("hdlTemplates"));
    m_templateFile->setStartFolder(m_shipped);
    addEnable(tr("Write the instruction memory into a copy of the template"));
    addField(tr("Entity name:"), m_entityName, tr("Name that the template gets for the memory"));
    addField(tr("Template file:"), m_templateFile, QString());
    addOutputFile(tr("Select %1 output file").arg(language), filter, suffix);
    addHint();
    connect(m_templateFile, &MyFileSelectOpen::fileValid, this, &TargetHdlConfigWidget::updateState);
}

void TargetHdlConfigWidget::setConfig(const TargetConfig* config, const QString& prjDir)
{
    m_entityName->setText(config->entityName);
    m_templateFile->setFile(config->templateFile, prjDir);
    TargetConfigWidget::setConfig(config, prjDir);
}

void TargetHdlConfigWidget::config(TargetConfig* config) const
{
    TargetConfigWidget::config(config);
    config->entityName = m_entityName->text();
    config->templateFile = m_templateFile->file();
}

QString TargetHdlConfigWidget::problem() const
{
    const QString file = m_templateFile->file();
    if (file.isEmpty()) {
        const QString text = tr("No template file is given: nothing will be written.");
        if (m_shipped.isEmpty())
            return text;
        return text + QLatin1Char(' ') +
               tr("Some ship with the program, such as rom_1kx18.%1 and rom_1kx18_halves.%1: the dialog begins there.")
                   .arg(m_suffix);
    }
    if (!QFileInfo(file).isFile())
        return tr("The template file does not exist: nothing can be written.");
    return TargetConfigWidget::problem();
}

TargetVhdlConfigWidget::TargetVhdlConfigWidget(QWidget* parent)
    : TargetHdlConfigWidget(QStringLiteral("vhdl"), tr("vhdl files(*.vhd)"), QStringLiteral("vhd"), parent)
{
}

TargetVerilogConfigWidget::TargetVerilogConfigWidget(QWidget* parent)
    : TargetHdlConfigWidget(QStringLiteral("verilog"), tr("verilog files(*.v)"), QStringLiteral("v"), parent)
{
}

} // namespace nsModAsmFe
