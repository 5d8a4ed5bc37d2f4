#include "AsmFeConfigPage.h"

#include "MyFieldTitle.h"
#include "MyPageLayout.h"
#include "TargetConfigWidget.h"
#include "TargetMapperConfigWidget.h"

#include <QComboBox>
#include <QIcon>
#include <QLabel>
#include <QTextCodec>

namespace nsModAsmFe {

namespace {

struct sChoice_t
{
    QString text;
    int value;
};

void addChoices(QComboBox* box, const char* name, const QList<sChoice_t>& choices)
{
    box->setObjectName(QLatin1String(name));
    for (const sChoice_t& choice : choices)
        box->addItem(choice.text, choice.value);
}

/// Nothing is selected for a value that is not in the list.
void select(QComboBox* box, const QVariant& value)
{
    box->setCurrentIndex(box->findData(value));
}

/// Where nothing is selected, the value stays as it is.
void take(const QComboBox* box, int* value)
{
    if (box->currentIndex() >= 0)
        *value = box->currentData().toInt();
}

/// The names of all character sets, each once.
QStringList charsetNames()
{
    QStringList names;
    for (int mib : QTextCodec::availableMibs()) {
        if (const QTextCodec* codec = QTextCodec::codecForMib(mib))
            names.append(QString::fromLatin1(codec->name()));
    }
    names.removeDuplicates();
    names.sort(Qt::CaseInsensitive);
    return names;
}

} // namespace

AsmFeConfigPage::AsmFeConfigPage(QWidget* parent)
    : QWidget(parent)
    , m_layout(new MyPageLayout(this, tr("Assembler configuration")))
    , m_defaultCharset(new QComboBox(this))
    , m_behaviorCharset(new QComboBox(this))
    , m_behaviorEqu(new QComboBox(this))
    , m_behaviorSet(new QComboBox(this))
    , m_behaviorIntVector(new QComboBox(this))
    , m_mapper(new TargetMapperConfigWidget(this))
    , m_hex(new TargetHexConfigWidget(this))
    , m_mem(new TargetMemConfigWidget(this))
    , m_vhdl(new TargetVhdlConfigWidget(this))
    , m_verilog(new TargetVerilogConfigWidget(this))
{
    setObjectName(QStringLiteral("configPage"));
    addBehavior();
    addCharset();
    addOutputs();
    const AsmFeConfig defaults;
    setConfig(&defaults, QString());
}

void AsmFeConfigPage::addBehavior()
{
    addChoices(m_behaviorEqu, "behaviorEqu",
               {{tr("Don't overwrite equations"), AsmFeConfig::equError},
                {tr("Warn by overwriting equations"), AsmFeConfig::equWarn},
                {tr("Overwrite equation without warning"), AsmFeConfig::equSilent}});
    addChoices(m_behaviorSet, "behaviorSet",
               {{tr("Don't overwrite settings"), AsmFeConfig::setError},
                {tr("Warn by overwriting settings"), AsmFeConfig::setWarn},
                {tr("Overwrite settings without warning"), AsmFeConfig::setSilent}});
    addChoices(m_behaviorIntVector, "behaviorIntVector",
               {{tr("Don't check interrupt vector"), AsmFeConfig::intVectorSilent},
                {tr("Warn if not defined by assembler code"), AsmFeConfig::intVectorWarn},
                {tr("Error if not defined by assembler code"), AsmFeConfig::intVectorError}});
    m_layout->addSection(tr("Assembler behavior"));
    m_layout->addField(tr("Equations overwrite behavior:"), m_behaviorEqu, tr("What a second #EQU of a name does"));
    m_layout->addField(tr("Settings overwrite behavior:"), m_behaviorSet,
                       tr("What a #SET does that differs from the settings in this dialog"));
    m_layout->addField(
        tr("Check interrupt vector behavior:"), m_behaviorIntVector,
        tr("What a run does when no instruction stands at the interrupt vector; not stored in the project"));
}

void AsmFeConfigPage::addCharset()
{
    m_defaultCharset->setObjectName(QStringLiteral("defaultCharset"));
    for (const QString& name : charsetNames())
        m_defaultCharset->addItem(name, name);
    addChoices(m_behaviorCharset, "behaviorCharset",
               {{tr("Don't use default charset"), AsmFeConfig::charsetError},
                {tr("Warn by using default charset"), AsmFeConfig::charsetWarn},
                {tr("Use default charset without warning"), AsmFeConfig::charsetSilent}});
    m_layout->addSection(tr("Character set"));
    m_layout->addField(tr("Default character set:"), m_defaultCharset, tr("Character set of texts that name none"));
    m_layout->addField(tr("Default charset behavior:"), m_behaviorCharset,
                       tr("What a text does that names no character set"));
}

void AsmFeConfigPage::addOutputs()
{
    m_layout->addSection(tr("Output file configuration"));
    m_hint = m_layout->addHint(tr("No output file is enabled: a run writes nothing."));
    m_hint->setObjectName(QStringLiteral("outputHint"));
    // All labels of the page share one column.
    const int width = fontMetrics().horizontalAdvance(tr("Check interrupt vector behavior:"));
    m_mapper->setLabelWidth(width);
    m_mapper->setObjectName(QStringLiteral("targetMapper"));
    m_layout->addSection(tr("File write events"));
    m_layout->addWide(m_mapper);
    const struct
    {
        const char* name;
        QString title;
        TargetConfigWidget* widget;
    } targets[] = {{"targetHex", tr("Hex output file"), m_hex},
                   {"targetMem", tr("Mem output file"), m_mem},
                   {"targetVhdl", tr("VHDL output file"), m_vhdl},
                   {"targetVerilog", tr("Verilog output file"), m_verilog}};
    for (const auto& target : targets) {
        target.widget->setObjectName(QLatin1String(target.name));
        target.widget->setLabelWidth(width);
        m_layout->addSection(target.title);
        m_layout->addWide(target.widget);
        connect(target.widget, &TargetConfigWidget::changed, this, &AsmFeConfigPage::updateHint);
    }
}

void AsmFeConfigPage::updateHint()
{
    const bool anyEnabled = m_hex->isEnabledOutput() || m_mem->isEnabledOutput() || m_vhdl->isEnabledOutput() ||
                            m_verilog->isEnabledOutput();
    m_hint->setVisible(!anyEnabled);
    m_mapper->setOutputsEnabled(m_vhdl->isEnabledOutput(), m_verilog->isEnabledOutput(), m_hex->isEnabledOutput(),
                                m_mem->isEnabledOutput());
}

void AsmFeConfigPage::setConfig(const AsmFeConfig* config, const QString& prjDir)
{
    m_prjDir = prjDir;
    // A character set that this machine does not support stays selectable, so that the page does not change the setting
    // by itself.
    if (m_defaultCharset->findData(config->defaultCharset) < 0 && !config->defaultCharset.isEmpty())
        m_defaultCharset->addItem(config->defaultCharset, config->defaultCharset);
    select(m_defaultCharset, config->defaultCharset);
    select(m_behaviorCharset, config->behaviorCharset);
    select(m_behaviorEqu, config->behaviorEqu);
    select(m_behaviorSet, config->behaviorSet);
    select(m_behaviorIntVector, config->behaviorChkIntVector);
    m_mapper->setConfig(config);
    m_hex->setConfig(&config->targetHex, prjDir);
    m_mem->setConfig(&config->targetMem, prjDir);
    m_vhdl->setConfig(&config->targetVhdl, prjDir);
    m_verilog->setConfig(&config->targetVerilog, prjDir);
    updateHint();
}

void AsmFeConfigPage::config(AsmFeConfig* config) const
{
    if (m_defaultCharset->currentIndex() >= 0)
        config->defaultCharset = m_defaultCharset->currentData().toString();
    take(m_behaviorCharset, &config->behaviorCharset);
    take(m_behaviorEqu, &config->behaviorEqu);
    take(m_behaviorSet, &config->behaviorSet);
    take(m_behaviorIntVector, &config->behaviorChkIntVector);
    m_mapper->config(config);
    m_hex->config(&config->targetHex);
    m_mem->config(&config->targetMem);
    m_vhdl->config(&config->targetVhdl);
    m_verilog->config(&config->targetVerilog);
}

void AsmFeConfigPage::setDefaultConfig()
{
    const AsmFeConfig defaults;
    setConfig(&defaults, m_prjDir);
}

void AsmFeConfigPage::setPrjConfigEnabled(bool enabled)
{
    m_prjEnabled = enabled;
    m_layout->setPrjConfigEnabled(enabled);
}

QIcon AsmFeConfigPage::pageIcon()
{
    return QIcon(QStringLiteral(":/ModAsmFe/img/configPage/configPageAssembler.png"));
}

QString AsmFeConfigPage::pageTitle()
{
    return tr("Assembler");
}

QString AsmFeConfigPage::pageHelpRef()
{
    return QStringLiteral("pageId://configPageAsmFe");
}

} // namespace nsModAsmFe
