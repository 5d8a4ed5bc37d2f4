#include "ProcConfigWidget.h"

#include "ProcAddressBox.h"
#include "ProcNumberBox.h"
#include "ProcTable.h"

#include "MyFieldTitle.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QSpinBox>
#include <QTabWidget>
#include <QVBoxLayout>

#include <limits>

namespace nsProc {

namespace {

const double hzPerMHz = 1000000;
const int frequencyDecimals = 6; ///< down to single Hz, which is what the project stores
const int margin = 16;
const int gap = 8;

} // namespace

ProcConfigWidget::ProcConfigWidget(const ProcTable& table, QWidget* parent)
    : QWidget(parent)
    , m_table(table)
    , m_tabs(new QTabWidget(this))
{
    m_tabs->setObjectName(QStringLiteral("procConfigTabs"));
    m_tabs->setAccessibleName(tr("Groups of settings"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_tabs);
    QGridLayout* grids[] = {addPage(tr("Processor core")), addPage(tr("Instruction memory"))};
    for (int i = 0; i < table.settingRowCount; ++i) {
        const sProcSetting_t& setting = table.settings[i];
        if (setting.control != sProcSetting_t::eControlNone)
            addField(grids[setting.page], grids[setting.page]->rowCount(), setting);
    }
    for (QGridLayout* grid : grids)
        grid->setRowStretch(grid->rowCount(), 1);
    addSimPage();
    connect(m_tabs, &QTabWidget::currentChanged, this, &ProcConfigWidget::tabChanged);
}

QGridLayout* ProcConfigWidget::addPage(const QString& title)
{
    auto* page = new QWidget(m_tabs);
    page->setObjectName(QStringLiteral("configWidget"));
    auto* grid = new QGridLayout(page);
    grid->setContentsMargins(margin, margin, margin, margin);
    grid->setSpacing(gap);
    grid->setColumnStretch(3, 1);
    m_tabs->addTab(page, title);
    return grid;
}

/// How a simulation is done.
void ProcConfigWidget::addSimPage()
{
    QGridLayout* grid = addPage(tr("Simulation"));
    const struct
    {
        const char* name;
        QString text;
        QString toolTip;
        int ProcCoreConfig::*value;
        int bit;
    } options[] = {
        {"exactSimulation", tr("Exactly as the core"),
         tr("Simulate what the core in the FPGA does, also where it differs from what this simulator does else"),
         &ProcCoreConfig::exactSimulation, 1},
        {"stopAtStack", tr("Stop where the call stack overflows or is empty"),
         tr("The core goes on there with another address, or resets itself"), &ProcCoreConfig::exactStops,
         ProcCoreConfig::eStopAtStack},
        {"stopAtScrpd", tr("Stop at addresses beyond the scratchpad"),
         tr("The core takes the address modulo the size of its scratchpad"), &ProcCoreConfig::exactStops,
         ProcCoreConfig::eStopAtScrpd},
        {"stopAtEmpty", tr("Stop where the memory holds no instruction"), tr("The core executes the word 0 there"),
         &ProcCoreConfig::exactStops, ProcCoreConfig::eStopAtEmpty},
        {"coreWarnings", tr("Else warn where the core would do otherwise"),
         tr("While the simulation is not exact, a warning comes at each instruction that the core would execute with "
            "another outcome"),
         &ProcCoreConfig::coreWarnings, 1},
    };
    for (const auto& option : options)
        m_options.append({addOption(grid, option.name, option.text, option.toolTip), option.value, option.bit});
    for (const sOption_t& option : qAsConst(m_options)) {
        if (option.value != &ProcCoreConfig::exactStops)
            continue;
        option.box->setEnabled(false);
        connect(m_options.first().box, &QCheckBox::toggled, option.box, &QCheckBox::setEnabled);
    }
    connect(m_options.first().box, &QCheckBox::toggled, m_options.last().box, &QCheckBox::setDisabled);
    if (m_table.core.hasLongAddresses) {
        addNumber(
            grid, "addressBits", tr("Address bits of ports and scratchpad:"),
            tr("Address lines that the core is built with; registers r13 to r15 are the upper bytes of an address "
               "in a register"),
            &ProcCoreConfig::addressBits, 8, 32);
        addNumber(grid, "waitStates", tr("Wait states of ports:"),
                  tr("Clock cycles that each access to a port waits for its device"), &ProcCoreConfig::waitStates, 0,
                  255);
    }
    grid->setRowStretch(grid->rowCount(), 1);
}

void ProcConfigWidget::addNumber(QGridLayout* grid, const char* name, const QString& text, const QString& toolTip,
                                 int ProcCoreConfig::*value, int minimum, int maximum)
{
    auto* box = new QSpinBox(this);
    box->setObjectName(QLatin1String(name));
    box->setRange(minimum, maximum);
    box->setAlignment(Qt::AlignRight);
    box->setToolTip(toolTip);
    auto* title = new MyFieldTitle(text, this);
    title->setToolTip(toolTip);
    title->setBuddy(box);
    box->setAccessibleName(text);
    const int row = grid->rowCount();
    grid->addWidget(title, row, 0);
    grid->addWidget(box, row, 1);
    m_numbers.append({box, value});
}

QCheckBox* ProcConfigWidget::addOption(QGridLayout* grid, const char* name, const QString& text, const QString& toolTip)
{
    auto* box = new QCheckBox(text, this);
    box->setObjectName(QLatin1String(name));
    box->setToolTip(toolTip);
    // Not as wide as the page: the frame of the focus goes around the text.
    grid->addWidget(box, grid->rowCount(), 0, 1, grid->columnCount(), Qt::AlignLeft | Qt::AlignVCenter);
    return box;
}

void ProcConfigWidget::addField(QGridLayout* grid, int row, const sProcSetting_t& field)
{
    QWidget* control = createControl(field);
    control->setObjectName(QLatin1String(settingField(field.setting).name));
    control->setToolTip(tr(field.toolTip));
    auto* title = new MyFieldTitle(tr(field.title), this);
    title->setToolTip(control->toolTip());
    title->setBuddy(control);
    control->setAccessibleName(title->text());
    grid->addWidget(title, row, 0);
    grid->addWidget(control, row, 1);
    if (*field.unit != '\0')
        grid->addWidget(new QLabel(tr(field.unit), this), row, 2);
    else if (auto* address = qobject_cast<ProcAddressBox*>(control))
        grid->addWidget(makeHexText(address), row, 2);
    m_fields.append({&field, control});
}

/// The same address as sources write it.
QLabel* ProcConfigWidget::makeHexText(ProcAddressBox* address)
{
    auto* label = new QLabel(this);
    label->setObjectName(address->objectName() + QLatin1String("Hex"));
    const auto show = [label, address] { label->setText(QStringLiteral("= ") + address->hexText()); };
    connect(address, qOverload<int>(&QSpinBox::valueChanged), label, show);
    show();
    return label;
}

QWidget* ProcConfigWidget::createControl(const sProcSetting_t& field)
{
    if (field.control == sProcSetting_t::eControlChoice) {
        auto* box = new QComboBox(this);
        for (int choice : field.choices)
            box->addItem(QString::number(choice), choice);
        return box;
    }
    if (field.control == sProcSetting_t::eControlNumber) {
        auto* box = field.isAddress ? new ProcAddressBox(this) : new QSpinBox(this);
        box->setRange(int(field.shownMin), int(field.shownMax));
        box->setValue(int(field.shownStart));
        box->setAlignment(Qt::AlignRight);
        return box;
    }
    auto* box = new ProcNumberBox(field.control == sProcSetting_t::eControlFrequency ? frequencyDecimals : 0, this);
    box->setRange(field.shownMin, field.shownMax);
    box->setValue(field.shownStart);
    box->setAlignment(Qt::AlignRight);
    return box;
}

void ProcConfigWidget::setConfig(const ProcCoreConfig* config)
{
    for (const sNumber_t& number : qAsConst(m_numbers))
        number.box->setValue(config->*number.value);
    for (const sOption_t& option : qAsConst(m_options))
        option.box->setChecked((config->*option.value & option.bit) != 0);
    for (const sField_t& field : m_fields) {
        int ProcCoreConfig::*member = settingField(field.setting->setting).value;
        if (field.setting->control == sProcSetting_t::eControlFrequency) {
            static_cast<ProcNumberBox*>(field.control)->setValue(config->clkFreq / hzPerMHz);
            continue;
        }
        const int value = config->*member;
        if (field.setting->control == sProcSetting_t::eControlChoice) {
            auto* box = static_cast<QComboBox*>(field.control);
            box->setCurrentIndex(box->findData(value));
        } else if (field.setting->control == sProcSetting_t::eControlNumber) {
            static_cast<QSpinBox*>(field.control)->setValue(value);
        } else {
            static_cast<ProcNumberBox*>(field.control)->setValue(value);
        }
    }
}

void ProcConfigWidget::config(ProcCoreConfig* config) const
{
    for (const sNumber_t& number : m_numbers)
        config->*number.value = number.box->value();
    for (const sOption_t& option : m_options) {
        int& value = config->*option.value;
        value = option.box->isChecked() ? value | option.bit : value & ~option.bit;
    }
    for (const sField_t& field : m_fields) {
        int ProcCoreConfig::*member = settingField(field.setting->setting).value;
        if (field.setting->control == sProcSetting_t::eControlFrequency) {
            config->clkFreq = qRound64(static_cast<ProcNumberBox*>(field.control)->value() * hzPerMHz);
        } else if (field.setting->control == sProcSetting_t::eControlChoice) {
            // Nothing is selected if the value of the project is not in the list: then it stays unchanged.
            const QVariant data = static_cast<QComboBox*>(field.control)->currentData();
            if (data.isValid())
                config->*member = data.toInt();
        } else if (field.setting->control == sProcSetting_t::eControlNumber) {
            config->*member = static_cast<QSpinBox*>(field.control)->value();
        } else {
            const double value = static_cast<ProcNumberBox*>(field.control)->value();
            config->*member = int(qMin<double>(value, std::numeric_limits<int>::max()));
        }
    }
}

QString ProcConfigWidget::widgetHelpRef()
{
    return "pageId://" + QLatin1String(m_table.cfgHelpPage);
}

void ProcConfigWidget::initWidget()
{
    m_tabs->setCurrentIndex(0);
}

void ProcConfigWidget::setDefaultConfig()
{
    const ProcCoreConfig defaults = m_table.defaultConfig();
    setConfig(&defaults);
}

void ProcConfigWidget::tabChanged(int)
{
    if (procConfigHook != nullptr)
        procConfigHook->setWidgetHelpChanged();
}

} // namespace nsProc
