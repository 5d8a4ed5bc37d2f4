#include "ProcAsmSettings.h"

#include "ProcTable.h"

#include "AsmBackend.h"
#include "SetList.h"

namespace nsProc {

using namespace nsModAsmFe;

ProcAsmSettings::ProcAsmSettings(const ProcTable& table, const AsmBeProgram& program, const ProcAsmReport& report,
                                 ProcCoreConfig* config)
    : m_table(table)
    , m_program(program)
    , m_report(report)
    , m_config(config)
{
}

bool ProcAsmSettings::setConfigFromDirectives()
{
    for (Set* set = m_program.sets->first(); set != nullptr; set = set->next) {
        if (set->nameSpaceUpper != QLatin1String(m_table.define))
            continue;
        const sProcSetting_t* setting = m_table.settingOfDirective(set->nameUpper);
        if (setting != nullptr && !setConfigFromDirective(set, *setting))
            return false;
    }
    return true;
}

bool ProcAsmSettings::setConfigFromDirective(Set* set, const sProcSetting_t& setting)
{
    set->used = true;
    if (setting.setting == settingScrpdIODev)
        return setConfigScrpdIODev(set);
    if (!expectNumeric(set))
        return false;
    const sSettingField_t& field = settingField(setting.setting);
    if (field.isOverride && !mayOverride(set, setting))
        return false;
    if (field.value != nullptr)
        m_config->*field.value = set->iValue;
    else
        m_config->clkFreq = set->iValue;
    if (setting.setting == settingIntVectorAddr)
        return checkConfigIntVectorAddr(&set->srcRef);
    if (setting.setting == settingScrpdSize)
        return checkConfigScrpdSize(setting, &set->srcRef);
    if (setting.accepts(set->iValue))
        return true;
    m_report.signMsg(field.invalid, &set->srcRef, set->value);
    return false;
}

/// @return the parameter's value is a number; else an error is reported
bool ProcAsmSettings::expectNumeric(const Set* set)
{
    if (set->valueType == Set::valueNumeric)
        return true;
    m_report.signMsg(errExpectNumeric, &set->srcRef, set->value);
    return false;
}

bool ProcAsmSettings::setConfigScrpdIODev(Set* set)
{
    if (set->valueType != Set::valueText) {
        m_report.signMsg(errExpectString, &set->srcRef, set->value);
        return false;
    }
    for (const Set* other = m_program.sets->first(); other != nullptr; other = other->next) {
        if (other->nameSpaceUpper.startsWith(QLatin1String("IODEV::")) && other->nameSpace == set->value) {
            m_config->scrpdIODev = set->value;
            return true;
        }
    }
    m_report.signMsg(errScrpdIODevNotDefined, &set->srcRef);
    return false;
}

/// @return the configuration lets a source change the setting; else an error is reported
bool ProcAsmSettings::mayOverride(const Set* set, const sProcSetting_t& setting)
{
    const sSettingField_t& field = settingField(setting.setting);
    if (m_program.isSetRefused) {
        m_report.signMsg(errSetOverwriteGuiSettings, &set->srcRef);
        return false;
    }
    if (m_program.isSetWarned && set->iValue != m_config->*field.value)
        m_report.signMsg(warnSetOverwriteGuiSettings, &set->srcRef, QString::fromLatin1(field.name));
    return true;
}

bool ProcAsmSettings::checkConfigStage1()
{
    if (!m_table.everyPageHasIntVector && !checkConfigIntVectorAddr(nullptr))
        return false;
    const sProcSetting_t* scrpdSize = m_table.setting(settingScrpdSize);
    return scrpdSize == nullptr || checkConfigScrpdSize(*scrpdSize, nullptr);
}

bool ProcAsmSettings::checkConfigIntVectorAddr(const SrcReference* srcRef)
{
    if (m_config->intVectorAddr < m_config->pageSize)
        return true;
    m_report.signMsg(errIntVectorOutOfMem, srcRef, QString::number(m_config->intVectorAddr));
    return false;
}

bool ProcAsmSettings::checkConfigScrpdSize(const sProcSetting_t& setting, const SrcReference* srcRef)
{
    if (setting.accepts(m_config->scrpdSize))
        return true;
    m_report.signMsg(errIvldScrpdSize, srcRef, QString::number(m_config->scrpdSize));
    return false;
}

} // namespace nsProc
