#include "AsmFeConfigPage.h"

#include "MyFieldTitle.h"
#include "MyPageLayout.h"
#include "SchemeIcons.h"
#include "TargetConfigWidget.h"
#include "TargetMapperConfigWidget.h"

#include <QComboBox>
#include <QIcon>
#include <QLabel>
#include <QTextCodec>

#include <iterator>

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
    , m_behaviorEqu(new QComboBox(this))
    , m_behaviorSet(new QComboBox(this))
    , m_behaviorIntVector(new QComboBox(this))
    , m_defaultCharset(new QComboBox(this))
    , m_behaviorCharset(new QComboBox(this))
    , m_mapper(new TargetMapperConfigWidget(this))
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
    const auto newImage = [this](const QString& name, const QString& filter, const char* suffix,
                                 const QStringList& layouts = {}) {
        return new TargetImageConfigWidget(name, filter, QLatin1String(suffix), layouts, this);
    };
    // In the order of the page.
    const struct
    {
        eTargetKind_t kind;
        const char* name;
        QString title;
        TargetConfigWidget* widget;
    } targets[] = {
        {kindHex, "targetHex", tr("Hex output file"), new TargetHexConfigWidget(this)},
        {kindMem, "targetMem", tr("Mem output file"), new TargetMemConfigWidget(this)},
        {kindVhdl, "targetVhdl", tr("VHDL output file"), new TargetVhdlConfigWidget(this)},
        {kindVerilog, "targetVerilog", tr("Verilog output file"), new TargetVerilogConfigWidget(this)},
        {kindMif, "targetMif", tr("MIF output file"), newImage(tr("MIF"), tr("MIF files(*.mif)"), "mif")},
        {kindCoe, "targetCoe", tr("COE output file"), newImage(tr("COE"), tr("COE files(*.coe)"), "coe")},
        {kindBinary, "targetBinary", tr("Binary output file"),
         newImage(tr("binary"), tr("Binary files(*.bin)"), "bin", {tr("Lowest byte first"), tr("Highest byte first")})},
        {kindIntelHex, "targetIntelHex", tr("Intel HEX output file"),
         newImage(tr("Intel HEX"), tr("Intel HEX files(*.ihex)"), "ihex",
                  {tr("Lowest byte first"), tr("Highest byte first"), tr("A record a word, addresses count words")})},
        {kindRamMem, "targetRamMem", tr("Block RAM mem output file"),
         newImage(tr("block RAM mem"), tr("Mem files(*.mem)"), "mem",
                  {tr("Low halves of all words, then high halves"), tr("Whole words")})}};
    static_assert(std::size(targets) == targetKindCount, "each kind has its section");
    for (const auto& target : targets) {
        m_targets[target.kind] = target.widget;
        target.widget->setObjectName(QLatin1String(target.name));
        target.widget->setLabelWidth(width);
        m_layout->addSection(target.title);
        m_layout->addWide(target.widget);
    }
    for (const TargetConfigWidget* widget : m_targets)
        connect(widget, &TargetConfigWidget::changed, this, &AsmFeConfigPage::updateHint);
}

void AsmFeConfigPage::updateHint()
{
    bool anyEnabled = false;
    for (int kind = 0; kind < targetKindCount; ++kind) {
        const bool isEnabled = m_targets[kind]->isEnabledOutput();
        anyEnabled = anyEnabled || isEnabled;
        m_mapper->setOutputEnabled(eTargetKind_t(kind), isEnabled);
    }
    m_hint->setVisible(!anyEnabled);
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
    for (int kind = 0; kind < targetKindCount; ++kind)
        m_targets[kind]->setConfig(&config->targets[kind], prjDir);
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
    for (int kind = 0; kind < targetKindCount; ++kind)
        m_targets[kind]->config(&config->targets[kind]);
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
    return SchemeIcons::of(QStringLiteral(":/ModAsmFe/img/configPage/configPageAssembler.png"));
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
