#include "DeviceBuilder.h"

#include "AsmFeConfig.h"
#include "AsmFeMsgHndlr.h"
#include "AsmLimits.h"
#include "AsmProgram.h"
#include "AsmProjectInfo.h"
#include "Opcode.h"
#include "RunWatch.h"
#include "StringEncoder.h"
#include "TargetKinds.h"

#include <algorithm>
#include <iterator>
#include <memory>

namespace nsModAsmFe {

DeviceBuilder::DeviceBuilder(AsmProgram& program, const AsmFeConfig& config, const AsmProjectInfo& project,
                             const AsmFeParseArg& numbers, AsmFeMsgHndlr& messages, RunWatch& watch)
    : m_sets(program.sets)
    , m_opcodes(program.opcodes)
    , m_ioDevs(program.ioDevs)
    , m_geometry(program.geometry)
    , m_config(config)
    , m_project(project)
    , m_messages(messages)
    , m_watch(watch)
    , m_values(program, numbers, messages, watch)
{
}

bool DeviceBuilder::setupIODevs()
{
    bool success = true;
    for (Set* set = m_sets.first(); set != nullptr; set = set->next) {
        if (!set->nameSpaceUpper.startsWith(QLatin1String("IODEV::")) || set->nameUpper != QLatin1String("EN") ||
            set->valueType != Set::valueTrue)
            continue;
        if (!m_watch.ask())
            return false;
        set->used = true;
        auto dev = std::make_unique<IODev>();
        dev->devName = set->nameSpace;
        dev->devNameUpper = set->nameSpaceUpper;
        dev->en = true;
        for (TargetFile& target : dev->targets)
            target.gapStuffingEn = false;
        m_devSrcRef = &set->srcRef;
        if (setupIODev(dev.get()))
            m_ioDevs.append(dev.release());
        else
            success = false;
    }
    if (!success)
        return false;
    return m_values.instMemMapped() ? setupIODevChkInstMemMapped() : setupIODevDefault();
}

bool DeviceBuilder::setupIODev(IODev* dev)
{
    return setupIODevAttrSize(dev) && setupIODevAttrBaseAddr(dev) && setupIODevAttrInitValue(dev) &&
           setupIODevAttrSimAccessMode(dev) && setupIODevAttrSimEn(dev) && setupIODevAttrType(dev) &&
           m_values.setupIODevAttrValues(dev) &&
           std::all_of(std::begin(targetKinds()), std::end(targetKinds()),
                       [&](const sTargetKind_t& kind) { return setupIODevAttrTarget(dev, kind); });
}

bool DeviceBuilder::setupIODevSetNumeric(Set* set, int* value)
{
    set->used = true;
    if (set->valueType != Set::valueNumeric) {
        m_messages.signMsg(errExpectNumeric, &set->srcRef, set->value);
        return false;
    }
    *value = set->iValue;
    return true;
}

bool DeviceBuilder::setupIODevSetBoolean(Set* set, bool* value)
{
    set->used = true;
    if (set->valueType != Set::valueTrue && set->valueType != Set::valueFalse) {
        m_messages.signMsg(errUnsupportedArgument, &set->srcRef, set->value);
        return false;
    }
    *value = set->valueType == Set::valueTrue;
    return true;
}

bool DeviceBuilder::setupIODevSetString(Set* set, QString* value)
{
    set->used = true;
    if (set->valueType != Set::valueText || !StringEncoder::isString(set->value)) {
        m_messages.signMsg(errExpectString, &set->srcRef, set->value);
        return false;
    }
    *value = set->value.mid(1, set->value.size() - 2);
    return true;
}

bool DeviceBuilder::setupIODevSetPath(Set* set, QString* value)
{
    if (!setupIODevSetString(set, value))
        return false;
    // An empty path would become the project's folder.
    if (!value->isEmpty())
        *value = m_project.absPath(*value);
    return true;
}

bool DeviceBuilder::setupIODevSetWidth(Set* set, int* bits)
{
    int value = 0;
    if (!setupIODevSetNumeric(set, &value))
        return false;
    if (value < 1 || value > TargetFile::maxWordWidth) {
        m_messages.signMsg(errUnsupportedArgument, &set->srcRef, set->value);
        return false;
    }
    *bits = value;
    return true;
}

bool DeviceBuilder::setupIODevSetLayout(Set* set, const sTargetKind_t& kind, int* layout)
{
    set->used = true;
    const int index = kind.layoutNames().indexOf(set->value.toLower());
    if (index < 0) {
        m_messages.signMsg(errUnsupportedArgument, &set->srcRef, set->value);
        return false;
    }
    *layout = index;
    return true;
}

bool DeviceBuilder::setupIODevAttrSize(IODev* dev)
{
    Set* set = m_sets.find(dev->devName, "SIZE");
    if (set == nullptr) {
        m_messages.signMsg(errSetMissingDirective, m_devSrcRef, dev->devName + "::size");
        return false;
    }
    if (!setupIODevSetNumeric(set, &dev->memSize))
        return false;
    if (dev->memSize > AsmLimits::maxMemWords - m_devWords) {
        m_messages.signMsg(errIODevTooLarge, &set->srcRef, dev->devName, QString::number(AsmLimits::maxMemWords),
                           set->value);
        return false;
    }
    m_devWords += qMax(dev->memSize, 0);
    return true;
}

bool DeviceBuilder::setupIODevAttrBaseAddr(IODev* dev)
{
    Set* set = m_sets.find(dev->devName, "BASEADDR");
    int value = 0;
    if (set != nullptr && !setupIODevSetNumeric(set, &value))
        return false;
    dev->baseAddr = static_cast<unsigned int>(value);
    return true;
}

bool DeviceBuilder::setupIODevAttrInitValue(IODev* dev)
{
    Set* set = m_sets.find(dev->devName, "INITVALUE");
    if (set == nullptr)
        return true;
    int value = 0;
    if (!setupIODevSetNumeric(set, &value))
        return false;
    dev->initValue = static_cast<unsigned int>(value);
    dev->initValueSrcRef = &set->srcRef;
    return true;
}

bool DeviceBuilder::setupIODevAttrSimAccessMode(IODev* dev)
{
    Set* set = m_sets.find(dev->devName, "SIMACCESSMODE");
    if (set == nullptr)
        return true;
    set->used = true;
    const QString mode = set->value.toUpper();
    if (mode == QLatin1String("RD"))
        dev->simAccessMode = IODev::simRd;
    else if (mode == QLatin1String("WR"))
        dev->simAccessMode = IODev::simWr;
    else if (mode == QLatin1String("RDWR"))
        dev->simAccessMode = IODev::simRdWr;
    else {
        m_messages.signMsg(errUnsupportedArgument, &set->srcRef, set->value);
        return false;
    }
    return true;
}

bool DeviceBuilder::setupIODevAttrSimEn(IODev* dev)
{
    Set* set = m_sets.find(dev->devName, "SIMEN");
    return set == nullptr || setupIODevSetBoolean(set, &dev->simEn);
}

bool DeviceBuilder::setupIODevAttrType(IODev* dev)
{
    dev->devType = IODev::mem;
    Set* set = m_sets.find(dev->devName, "TYPE");
    if (set == nullptr)
        return true;
    set->used = true;
    const QString type = set->value.toUpper();
    if (type == QLatin1String("MEM"))
        dev->devType = IODev::mem;
    else if (type == QLatin1String("REG"))
        dev->devType = IODev::reg;
    else if (type == QLatin1String("FIFO"))
        dev->devType = IODev::fifo;
    else {
        m_messages.signMsg(errUnsupportedArgument, &set->srcRef, set->value);
        return false;
    }
    return true;
}

bool DeviceBuilder::setupIODevAttrTarget(IODev* dev, const sTargetKind_t& kind)
{
    TargetFile& target = dev->targets[kind.kind];
    const auto parameter = [&](const char* name) {
        return m_sets.find(dev->devName, QString::fromLatin1(kind.setName).toUpper() + QLatin1String(name));
    };
    const auto isTaken = [](Set* set, const auto& take) { return set == nullptr || take(set); };
    if (!isTaken(parameter("EN"), [&](Set* set) { return setupIODevSetBoolean(set, &target.en); }))
        return false;
    if (kind.hasTemplate && (!isTaken(parameter("ENTITYNAME"), [&](Set* set) {
            return setupIODevSetString(set, &target.entityName);
        }) || !isTaken(parameter("TMPLFILE"), [&](Set* set) { return setupIODevSetPath(set, &target.templateFile); })))
        return false;
    if (!isTaken(parameter("TARGETFILE"), [&](Set* set) {
            target.outputBySource = true;
            return setupIODevSetPath(set, &target.outputFile);
        }))
        return false;
    if (kind.hasGapStuffing &&
        !isTaken(parameter("GAPSTUFFING"), [&](Set* set) { return setupIODevSetBoolean(set, &target.gapStuffingEn); }))
        return false;
    if (kind.isImage &&
        (!isTaken(parameter("WIDTH"), [&](Set* set) { return setupIODevSetWidth(set, &target.wordWidth); }) ||
         (*kind.layouts != '\0' &&
          !isTaken(parameter("LAYOUT"), [&](Set* set) { return setupIODevSetLayout(set, kind, &target.layout); }))))
        return false;
    return !target.en || checkTarget(dev, kind);
}

/// @return an output of the device has all that it needs; else reported
bool DeviceBuilder::checkTarget(const IODev* dev, const sTargetKind_t& kind)
{
    const TargetFile& target = dev->targets[kind.kind];
    const QString name = QString::fromLatin1(kind.setName);
    if (kind.hasTemplate && target.entityName.isEmpty())
        m_messages.signMsg(errIODevMissingEntityName, m_devSrcRef, name, dev->devName);
    else if (kind.hasTemplate && target.templateFile.isEmpty())
        m_messages.signMsg(errIODevMissingTemplateFile, m_devSrcRef, name, dev->devName);
    else if (target.outputFile.isEmpty())
        m_messages.signMsg(errIODevMissingTargetFile, m_devSrcRef, name, dev->devName);
    else
        return true;
    return false;
}

bool DeviceBuilder::setupIODevDefault()
{
    auto* dev = new IODev;
    dev->devName = QStringLiteral("IODev::defaultInstMem");
    dev->devNameUpper = dev->devName.toUpper();
    dev->en = true;
    dev->instMem = true;
    dev->devType = IODev::mem;
    dev->memSize = m_geometry.pageSize * m_geometry.pageCount;
    for (int kind = 0; kind < targetKindCount; ++kind)
        dev->targets[kind] = m_config.targets[kind];
    dev->initDevice();
    m_ioDevs.append(dev);

    bool success = true;
    const auto setValue = [&](qint64 addr, Opcode* opcode, bool mirrored) {
        if (dev->setValue(int(addr), static_cast<unsigned int>(opcode->instWord), &opcode->srcRef, mirrored))
            return;
        m_messages.signMsg(errIODevAddrExceedsDevSize, &opcode->srcRef, QString::number(addr),
                           QString::number(dev->memSize));
        success = false;
    };
    for (Opcode* opcode : m_opcodes) {
        if (!m_watch.goesOn())
            return false;
        opcode->mappedToIODev = true;
        if (opcode->memRange != 0) {
            setValue(opcode->memAddr, opcode, false);
            continue;
        }
        // The bound is inclusive: a shared word at address 0 is also copied to the end of the memory.
        for (qint64 addr = opcode->memAddr; addr <= dev->memSize; addr += m_geometry.pageSize)
            setValue(addr, opcode, true);
    }
    return success;
}

bool DeviceBuilder::setupIODevChkInstMemMapped()
{
    bool success = true;
    const Opcode* opcode = m_opcodes.first();
    while (opcode != nullptr) {
        if (opcode->mappedToIODev) {
            opcode = opcode->next;
            continue;
        }
        const Opcode* first = opcode;
        const Opcode* last = opcode;
        for (; opcode != nullptr && !opcode->mappedToIODev; opcode = opcode->next)
            last = opcode;
        m_messages.signMsg(warnIODevUnmappedInstructions, &first->srcRef, QString::number(first->memAddr),
                           QString::number(last->memAddr));
        success = false;
    }
    return success;
}

} // namespace nsModAsmFe
