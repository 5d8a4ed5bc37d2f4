// IO devices: their declaration, their parameters, and the device that takes the program where no source declares one.

#include "ModAsmFe.h"

#include "ModPrjHookIf.h"
#include "Opcode.h"

namespace nsModAsmFe {

bool ModAsmFe::setupIODevs()
{
    bool success = true;
    m_devWords = 0;
    for (Set* set = m_setList.first(); set != nullptr; set = set->next) {
        if (!set->nameSpaceUpper.startsWith(QLatin1String("IODEV::")) || set->nameUpper != QLatin1String("EN") ||
            set->valueType != Set::valueTrue)
            continue;
        set->used = true;
        auto dev = std::make_unique<IODev>();
        dev->devName = set->nameSpace;
        dev->devNameUpper = set->nameSpaceUpper;
        dev->en = true;
        dev->memGapStuffingEn = false;
        m_devSrcRef = &set->srcRef;
        if (setupIODev(dev.get()))
            m_ioDevList.append(dev.release());
        else
            success = false;
    }
    if (!success)
        return false;
    return m_instMemMapped ? setupIODevChkInstMemMapped() : setupIODevDefault();
}

bool ModAsmFe::setupIODev(IODev* dev)
{
    return setupIODevAttrSize(dev) && setupIODevAttrBaseAddr(dev) && setupIODevAttrInitValue(dev) &&
           setupIODevAttrSimAccessMode(dev) && setupIODevAttrSimEn(dev) && setupIODevAttrType(dev) &&
           setupIODevAttrValues(dev) && setupIODevAttrTargetVhdl(dev) && setupIODevAttrTargetVerilog(dev) &&
           setupIODevAttrTargetHex(dev) && setupIODevAttrTargetMem(dev);
}

bool ModAsmFe::setupIODevSetNumeric(Set* set, int* value)
{
    set->used = true;
    if (set->valueType != Set::valueNumeric) {
        m_msgHndlr->signMsg(errExpectNumeric, &set->srcRef, set->value);
        return false;
    }
    *value = set->iValue;
    return true;
}

bool ModAsmFe::setupIODevSetBoolean(Set* set, bool* value)
{
    set->used = true;
    if (set->valueType != Set::valueTrue && set->valueType != Set::valueFalse) {
        m_msgHndlr->signMsg(errUnsupportedArgument, &set->srcRef, set->value);
        return false;
    }
    *value = set->valueType == Set::valueTrue;
    return true;
}

bool ModAsmFe::setupIODevSetString(Set* set, QString* value)
{
    set->used = true;
    if (set->valueType != Set::valueText || !isString(set->value)) {
        m_msgHndlr->signMsg(errExpectString, &set->srcRef, set->value);
        return false;
    }
    *value = set->value.mid(1, set->value.size() - 2);
    return true;
}

bool ModAsmFe::setupIODevSetPath(Set* set, QString* value)
{
    if (!setupIODevSetString(set, value))
        return false;
    // An empty path would become the project's folder.
    if (modPrjHook != nullptr && !value->isEmpty())
        modPrjHook->convToAbsPath(value);
    return true;
}

bool ModAsmFe::setupIODevAttrSize(IODev* dev)
{
    Set* set = m_setList.find(dev->devName, "SIZE");
    if (set == nullptr) {
        m_msgHndlr->signMsg(errSetMissingDirective, m_devSrcRef, dev->devName + "::size");
        return false;
    }
    if (!setupIODevSetNumeric(set, &dev->memSize))
        return false;
    if (dev->memSize > maxMemWords - m_devWords) {
        m_msgHndlr->signMsg(errIODevTooLarge, &set->srcRef, dev->devName, QString::number(maxMemWords), set->value);
        return false;
    }
    m_devWords += qMax(dev->memSize, 0);
    return true;
}

bool ModAsmFe::setupIODevAttrBaseAddr(IODev* dev)
{
    Set* set = m_setList.find(dev->devName, "BASEADDR");
    int value = 0;
    if (set != nullptr && !setupIODevSetNumeric(set, &value))
        return false;
    dev->baseAddr = static_cast<unsigned int>(value);
    return true;
}

bool ModAsmFe::setupIODevAttrInitValue(IODev* dev)
{
    Set* set = m_setList.find(dev->devName, "INITVALUE");
    if (set == nullptr)
        return true;
    int value = 0;
    if (!setupIODevSetNumeric(set, &value))
        return false;
    dev->initValue = static_cast<unsigned int>(value);
    dev->initValueSrcRef = &set->srcRef;
    return true;
}

bool ModAsmFe::setupIODevAttrSimAccessMode(IODev* dev)
{
    Set* set = m_setList.find(dev->devName, "SIMACCESSMODE");
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
        m_msgHndlr->signMsg(errUnsupportedArgument, &set->srcRef, set->value);
        return false;
    }
    return true;
}

bool ModAsmFe::setupIODevAttrSimEn(IODev* dev)
{
    Set* set = m_setList.find(dev->devName, "SIMEN");
    return set == nullptr || setupIODevSetBoolean(set, &dev->simEn);
}

bool ModAsmFe::setupIODevAttrType(IODev* dev)
{
    dev->devType = IODev::mem;
    Set* set = m_setList.find(dev->devName, "TYPE");
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
        m_msgHndlr->signMsg(errUnsupportedArgument, &set->srcRef, set->value);
        return false;
    }
    return true;
}

bool ModAsmFe::setupIODevAttrTargetEn(IODev* dev, const QString& kind, bool* en)
{
    Set* set = m_setList.find(dev->devName, kind.toUpper() + "EN");
    return set == nullptr || setupIODevSetBoolean(set, en);
}

bool ModAsmFe::setupIODevAttrTargetFile(IODev* dev, const QString& kind, QString* file)
{
    Set* set = m_setList.find(dev->devName, kind.toUpper() + "TARGETFILE");
    return set == nullptr || setupIODevSetPath(set, file);
}

bool ModAsmFe::setupIODevAttrTargetHdl(IODev* dev, const QString& kind, bool* en, QString* entity,
                                       QString* templateFile, QString* targetFile)
{
    const QString prefix = kind.toUpper();
    Set* entitySet = m_setList.find(dev->devName, prefix + "ENTITYNAME");
    Set* templateSet = m_setList.find(dev->devName, prefix + "TMPLFILE");
    if (!setupIODevAttrTargetEn(dev, kind, en) || (entitySet != nullptr && !setupIODevSetString(entitySet, entity)) ||
        (templateSet != nullptr && !setupIODevSetPath(templateSet, templateFile)) ||
        !setupIODevAttrTargetFile(dev, kind, targetFile))
        return false;
    if (!*en)
        return true;
    if (entity->isEmpty())
        m_msgHndlr->signMsg(errIODevMissingEntityName, m_devSrcRef, kind, dev->devName);
    else if (templateFile->isEmpty())
        m_msgHndlr->signMsg(errIODevMissingTemplateFile, m_devSrcRef, kind, dev->devName);
    else if (targetFile->isEmpty())
        m_msgHndlr->signMsg(errIODevMissingTargetFile, m_devSrcRef, kind, dev->devName);
    else
        return true;
    return false;
}

bool ModAsmFe::setupIODevAttrTargetVhdl(IODev* dev)
{
    return setupIODevAttrTargetHdl(dev, "VHDL", &dev->targetVhdlEn, &dev->vhdlEntityName, &dev->vhdlTemplateFile,
                                   &dev->vhdlTargetFile);
}

bool ModAsmFe::setupIODevAttrTargetVerilog(IODev* dev)
{
    return setupIODevAttrTargetHdl(dev, "Verilog", &dev->targetVerilogEn, &dev->verilogEntityName,
                                   &dev->verilogTemplateFile, &dev->verilogTargetFile);
}

bool ModAsmFe::setupIODevAttrTargetHex(IODev* dev)
{
    if (!setupIODevAttrTargetEn(dev, "HEX", &dev->targetHexEn) ||
        !setupIODevAttrTargetFile(dev, "HEX", &dev->hexTargetFile))
        return false;
    if (!dev->targetHexEn || !dev->hexTargetFile.isEmpty())
        return true;
    m_msgHndlr->signMsg(errIODevMissingTargetFile, m_devSrcRef, "HEX", dev->devName);
    return false;
}

bool ModAsmFe::setupIODevAttrTargetMem(IODev* dev)
{
    if (!setupIODevAttrTargetEn(dev, "MEM", &dev->targetMemEn) ||
        !setupIODevAttrTargetFile(dev, "MEM", &dev->memTargetFile) || !setupIODevAttrTargetMemGapStuffing(dev))
        return false;
    if (!dev->targetMemEn || !dev->memTargetFile.isEmpty())
        return true;
    m_msgHndlr->signMsg(errIODevMissingTargetFile, m_devSrcRef, "MEM", dev->devName);
    return false;
}

bool ModAsmFe::setupIODevAttrTargetMemGapStuffing(IODev* dev)
{
    Set* set = m_setList.find(dev->devName, "MEMGAPSTUFFING");
    return set == nullptr || setupIODevSetBoolean(set, &dev->memGapStuffingEn);
}

bool ModAsmFe::setupIODevDefault()
{
    auto* dev = new IODev;
    dev->devName = QStringLiteral("IODev::defaultInstMem");
    dev->devNameUpper = dev->devName.toUpper();
    dev->en = true;
    dev->instMem = true;
    dev->devType = IODev::mem;
    dev->memSize = m_pageSize * m_pageCount;
    dev->targetVhdlEn = targetVhdl.en;
    dev->vhdlEntityName = targetVhdl.entityName;
    dev->vhdlTemplateFile = targetVhdl.templateFile;
    dev->vhdlTargetFile = targetVhdl.outputFile;
    dev->targetVerilogEn = targetVerilog.en;
    dev->verilogEntityName = targetVerilog.entityName;
    dev->verilogTemplateFile = targetVerilog.templateFile;
    dev->verilogTargetFile = targetVerilog.outputFile;
    dev->targetHexEn = targetHex.en;
    dev->hexTargetFile = targetHex.outputFile;
    dev->targetMemEn = targetMem.en;
    dev->memTargetFile = targetMem.outputFile;
    dev->memGapStuffingEn = targetMem.gapStuffingEn;
    dev->initDevice();
    m_ioDevList.append(dev);

    bool success = true;
    const auto setValue = [&](qint64 addr, Opcode* opcode, bool mirrored) {
        if (dev->setValue(int(addr), static_cast<unsigned int>(opcode->instWord), &opcode->srcRef, mirrored))
            return;
        m_msgHndlr->signMsg(errIODevAddrExceedsDevSize, &opcode->srcRef, QString::number(addr),
                            QString::number(dev->memSize));
        success = false;
    };
    for (Opcode* opcode : m_opcodeList) {
        opcode->mappedToIODev = true;
        if (opcode->memRange != 0) {
            setValue(opcode->memAddr, opcode, false);
            continue;
        }
        // The bound is inclusive: a shared word at address 0 is also copied to the end of the memory.
        for (qint64 addr = opcode->memAddr; addr <= dev->memSize; addr += m_pageSize)
            setValue(addr, opcode, true);
    }
    return success;
}

bool ModAsmFe::setupIODevChkInstMemMapped()
{
    bool success = true;
    const Opcode* opcode = m_opcodeList.first();
    while (opcode != nullptr) {
        if (opcode->mappedToIODev) {
            opcode = opcode->next;
            continue;
        }
        const Opcode* first = opcode;
        const Opcode* last = opcode;
        for (; opcode != nullptr && !opcode->mappedToIODev; opcode = opcode->next)
            last = opcode;
        m_msgHndlr->signMsg(warnIODevUnmappedInstructions, &first->srcRef, QString::number(first->memAddr),
                            QString::number(last->memAddr));
        success = false;
    }
    return success;
}

} // namespace nsModAsmFe
