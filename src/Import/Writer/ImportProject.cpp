#include "ImportProject.h"

#include "AsmFeConfig.h"
#include "CfgAccess.h"
#include "CfgStore.h"
#include "PrjConfig.h"
#include "PrjFile.h"
#include "PrjSettings.h"
#include "ProcConfig.h"
#include "ProcTable.h"
#include "Processor.h"
#include "SourcesConfig.h"
#include "TargetKinds.h"

namespace nsImport {

namespace {

/// Settings of a project that has no place yet: its paths are relative already.
class RelativeSettings : public CfgAccess<PrjSettings>
{
public:
    explicit RelativeSettings(CfgStore* tree)
        : CfgAccess(tree)
    {
    }

    QString convToRelPath(QString path) override { return path; }
    QString convToAbsPath(QString path) override { return path; }
};

const int smallestMemory = 1024;

} // namespace

QByteArray ImportProject::text() const
{
    CfgStore tree;
    tree.clear();
    RelativeSettings settingsOfProject(&tree);
    nsModPrj::PrjConfig info;
    info.cfgTitle = title;
    info.cfgVersion = QStringLiteral("0.1");
    info.cfgComment = comment;
    info.wrPrjConfig(&tree);
    nsModSources::SourcesConfig list;
    list.srcFiles = sources;
    list.wrSourcesConfig(&settingsOfProject, nullptr);
    nsModProcessor::ProcConfig choice;
    choice.processor = QLatin1String(table->name);
    choice.wrProcConfig(&settingsOfProject);
    nsProc::Processor processor(*table);
    processor.setSettings(settings);
    processor.writeSettings(&settingsOfProject);

    nsModAsmFe::AsmFeConfig config;
    config.behaviorCharset = nsModAsmFe::AsmFeConfig::charsetSilent;
    nsModAsmFe::TargetConfig& hex = config.targets[nsModAsmFe::kindHex];
    hex.en = !hexFile.isEmpty();
    hex.outputFile = hexFile;
    nsModAsmFe::TargetConfig& mem = config.targets[nsModAsmFe::kindMem];
    mem.en = !memFile.isEmpty();
    mem.outputFile = memFile;
    nsModAsmFe::TargetConfig& vhdl = config.targets[nsModAsmFe::kindVhdl];
    vhdl.en = vhdlEnabled;
    vhdl.entityName = vhdlEntity;
    vhdl.templateFile = vhdlTemplate;
    vhdl.outputFile = vhdlFile;
    for (const nsModAsmFe::sTargetKind_t& kind : nsModAsmFe::targetKinds()) {
        // An event of an output that is off would cause a warning in each run; images are silent.
        if (kind.isImage)
            continue;
        nsModAsmFe::TargetConfig& target = config.targets[kind.kind];
        target.writeFileEventBut1 = target.en;
        target.writeFileEventBut2 = target.en;
    }
    config.wrAsmFeConfig(&settingsOfProject);
    return nsModPrj::PrjFile::format(&tree, nullptr);
}

int interruptVectorOf(const ForeignProgram& program)
{
    // Code that begins at an address of its own and returns from an interrupt, or jumps away at once.
    int vector = -1;
    bool returns = false;
    int start = -1;
    for (const ForeignStatement& statement : program.statements) {
        if (statement.op() == opAddress && statement.hasWord()) {
            start = statement.address;
            continue;
        }
        if (statement.size == 0 || statement.meaning == nullptr)
            continue;
        const nsModAsmFe::eOpcode_t opcode = statement.meaning->opcode;
        const bool isReti = opcode == nsModAsmFe::ocReti;
        returns = returns || isReti;
        const bool isEntry = start > 0 && ((statement.address == start && opcode == nsModAsmFe::ocJump) || isReti);
        if (isEntry)
            vector = qMax(vector, start);
    }
    return returns ? vector : -1;
}

nsProc::ProcCoreConfig importSettings(const ForeignProgram& program, int size, int memorySize)
{
    const nsProc::ProcTable& table = program.dialect->processor();
    nsProc::ProcCoreConfig config = table.defaultConfig();
    config.pageSize = smallestMemory;
    while (config.pageSize < size || config.pageSize < memorySize || config.pageSize <= program.highestTarget)
        config.pageSize *= 2;
    if (table.setting(nsProc::settingIntVectorAddr) != nullptr) {
        const int vector = interruptVectorOf(program);
        if (vector >= 0)
            config.intVectorAddr = vector;
        config.scrpdSize = 64;
        while (config.scrpdSize < program.scratchpadSize)
            config.scrpdSize *= 2;
    }
    return config;
}

} // namespace nsImport
