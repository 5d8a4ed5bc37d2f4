#include "HostileRun.h"

QString brokenRule(const AsmFixture& f)
{
    if (!f.msg.openGroups.isEmpty())
        return "groups stay open: " + f.msg.openGroups.join(", ");
    if (f.msg.surplusCloses > 0)
        return "groups are closed that are not open";
    auto& asmFe = const_cast<nsModAsmFe::ModAsmFe&>(f.asmFe);
    QStringList errors = f.errors();
    // Code that no device takes is reported as a warning.
    if (!asmFe.isAssembled() && (!errors.isEmpty() || f.warnings().contains("warnIODevUnmappedInstructions")))
        return QString();
    if (!asmFe.isAssembled())
        return "fails without an error";
    // A label without a name, and a number that has no value, are reported as errors and do not stop the run.
    errors.removeAll("errLblIsEmpty");
    errors.removeAll("errExpectArgument");
    if (!errors.isEmpty())
        return "assembled with errors: " + f.msg.errors().join(" / ").left(1000);
    for (const nsModAsmFe::Opcode* opcode : *asmFe.opcodeList()) {
        if (opcode->pageAddr < 0 || opcode->memAddr < 0 || opcode->memRange < 0)
            return QString("line %1 has no address").arg(opcode->srcRef.lineNo + 1);
        if (opcode->instWord < 0 || opcode->instWord > 0x3ffff)
            return QString("line %1 has no word of 18 bits").arg(opcode->srcRef.lineNo + 1);
    }
    return QString();
}

QString hostileRun(const QList<QByteArray>& sources)
{
    AsmFixture f(AsmFixture::partBackend);
    f.be.pageSize = 1024;
    f.be.firstWord = 0;
    f.open();
    f.setSources(sources);
    f.asmFe.assemble(nsModAsmFe::ModAsmFe::eEventSave);
    return brokenRule(f);
}

QString refusedRun(const QList<QByteArray>& sources)
{
    AsmFixture f(AsmFixture::partBackend);
    f.be.pageSize = 1024;
    f.open();
    f.setSources(sources);
    f.asmFe.assemble(nsModAsmFe::ModAsmFe::eEventSave);
    if (f.asmFe.isAssembled())
        return "was not refused";
    return brokenRule(f);
}
