#include "Processor.h"

#include "ProcConfig.h"
#include "ProcTables.h"

#include "PrjSettings.h"

namespace nsProc {

namespace {

const double maxFrequency = 10e9; ///< Hz, as on the settings page

/// The frequency in Hz, which a project stores as text. A text that is not a number gives 0, and so do "nan" and "inf",
/// which can not be stored as whole Hz.
double frequencyOf(const QString& text)
{
    const double frequency = text.toDouble();
    return qIsFinite(frequency) ? qBound(0.0, frequency, maxFrequency) : 0;
}

QString textOf(double frequency)
{
    return QString::number(frequency, 'f', 0);
}

QString keyOf(const ProcTable& table, const sSettingField_t& field)
{
    return QLatin1String(table.cfgSection) + '/' + QLatin1String(field.key);
}

/// How the simulation is done. These keys are in a project only after one of them was set.
struct sSimKey_t
{
    const char* key;
    int ProcCoreConfig::*value;
    int minimum;
    int maximum;
};
const sSimKey_t simKeys[] = {
    {"simExact", &ProcCoreConfig::exactSimulation, 0, 1},
    {"simExactStops", &ProcCoreConfig::exactStops, 0, ProcCoreConfig::allExactStops},
    {"simCoreWarnings", &ProcCoreConfig::coreWarnings, 0, 1},
    {"simAddressBits", &ProcCoreConfig::addressBits, 8, 32},
    {"simWaitStates", &ProcCoreConfig::waitStates, 0, 255},
};

QString keyOf(const ProcTable& table, const sSimKey_t& option)
{
    return QLatin1String(table.cfgSection) + '/' + QLatin1String(option.key);
}

} // namespace

Processor::Processor(const ProcTable& table, ProcCoreConfig* run)
    : m_backEnd(table)
    , m_settings(table.defaultConfig())
    , m_ownRun(m_settings)
    , m_run(run != nullptr ? run : &m_ownRun)
{
}

std::unique_ptr<Processor> Processor::ofProject(PrjSettings* project)
{
    nsModProcessor::ProcConfig choice;
    choice.rdProcConfig(project);
    const ProcTable* table = procTable(choice.processor);
    if (table == nullptr)
        return nullptr;
    auto processor = std::make_unique<Processor>(*table);
    processor->readSettings(project);
    return processor;
}

void Processor::setSettings(const ProcCoreConfig& settings)
{
    m_settings = settings;
    *m_run = settings;
}

ProcCoreConfig* Processor::startRun()
{
    *m_run = m_settings;
    return m_run;
}

void Processor::readSettings(PrjSettings* project)
{
    ProcCoreConfig config = table().defaultConfig();
    for (eSetting_t setting : table().storedSettings) {
        const sSettingField_t& field = settingField(setting);
        const sProcSetting_t& row = *table().setting(setting);
        const QString key = keyOf(table(), field);
        // A frequency is stored in whole Hz, and may be larger than an int.
        if (field.value == nullptr)
            config.clkFreq = frequencyOf(project->value(key, textOf(config.clkFreq)));
        else
            config.*field.value = qBound(row.storedMin, project->value(key, config.*field.value), row.storedMax);
    }
    for (const sSimKey_t& option : simKeys)
        config.*option.value =
            qBound(option.minimum, project->value(keyOf(table(), option), config.*option.value), option.maximum);
    setSettings(config);
}

void Processor::writeSettings(PrjSettings* project) const
{
    for (eSetting_t setting : table().storedSettings) {
        const sSettingField_t& field = settingField(setting);
        const QString key = keyOf(table(), field);
        if (field.value == nullptr)
            project->setValue(key, textOf(m_settings.clkFreq));
        else
            project->setValue(key, m_settings.*field.value);
    }
    const int missing = -1;
    const ProcCoreConfig defaults;
    for (const sSimKey_t& option : simKeys) {
        const QString key = keyOf(table(), option);
        if (m_settings.*option.value != defaults.*option.value || project->value(key, missing) != missing)
            project->setValue(key, m_settings.*option.value);
    }
}

QString Processor::processorName()
{
    return QLatin1String(table().name);
}

QString Processor::processorDefine()
{
    return QLatin1String(table().define);
}

bool Processor::assembleStage1(const nsModAsmFe::AsmBeProgram& program)
{
    ProcCoreConfig* config = startRun();
    config->pageSize = program.pageSize;
    config->pageCount = program.pageCount;
    config->sharedMemHi = program.isSharedMemHigh;
    return m_backEnd.assembleStage1(program, config);
}

bool Processor::assembleStage2(const nsModAsmFe::AsmBeProgram& program)
{
    return m_backEnd.assembleStage2(program, *m_run);
}

} // namespace nsProc
