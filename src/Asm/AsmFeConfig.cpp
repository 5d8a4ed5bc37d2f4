#include "AsmFeConfig.h"

#include "CfgItems.h"
#include "PrjSettings.h"
#include "TargetKinds.h"

namespace nsModAsmFe {

namespace {

template <class Items, class Config>
void targetItems(Items& items, const sTargetKind_t& kind, Config& config)
{
    const QString key = QLatin1String("AsmFe/target/") + QLatin1String(kind.key);
    items.item(key + "/en", config.en);
    items.item(key + "/writeFileEventBut1", config.writeFileEventBut1);
    items.item(key + "/writeFileEventBut2", config.writeFileEventBut2);
    items.item(key + "/writeFileEventSave", config.writeFileEventSave);
    if (kind.hasTemplate) {
        items.item(key + "/entityName", config.entityName);
        items.path(key + "/templateFile", config.templateFile);
    }
    items.path(key + "/outputFile", config.outputFile);
    if (kind.hasGapStuffing)
        items.item(key + "/gapStuffingEn", config.gapStuffingEn);
}

template <class Items, class Config>
void allItems(Items items, Config& config)
{
    items.item("AsmFe/defaultCharset", config.defaultCharset);
    items.choice("AsmFe/behavior/charset", config.behaviorCharset, AsmFeConfig::charsetSilent);
    items.choice("AsmFe/behavior/equ", config.behaviorEqu, AsmFeConfig::equSilent);
    items.choice("AsmFe/behavior/set", config.behaviorSet, AsmFeConfig::setSilent);
    for (const sTargetKind_t& kind : targetKinds())
        targetItems(items, kind, config.targets[kind.kind]);
}

} // namespace

void AsmFeConfig::rdAsmFeConfig(PrjSettings* prj)
{
    allItems(CfgReader<PrjSettings>(prj), *this);
}

void AsmFeConfig::wrAsmFeConfig(PrjSettings* prj) const
{
    allItems(CfgWriter<PrjSettings>(prj), *this);
}

} // namespace nsModAsmFe
