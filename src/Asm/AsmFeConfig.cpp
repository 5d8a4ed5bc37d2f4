#include "AsmFeConfig.h"

#include "CfgItems.h"
#include "PrjSettings.h"
#include "TargetKinds.h"

namespace nsModAsmFe {

namespace {

QString keyOf(const sTargetKind_t& kind)
{
    return QLatin1String(kind.section) + '/' + QLatin1String(kind.key);
}

/// The project has a use for this kind, or had one: a device of a source may be written at these events.
bool isUsed(PrjSettings* prj, const sTargetKind_t& kind, const TargetConfig& config)
{
    const TargetConfig defaults;
    return config.en || !config.outputFile.isEmpty() || config.wordWidth != defaults.wordWidth ||
           config.layout != defaults.layout || config.writeFileEventBut1 != defaults.writeFileEventBut1 ||
           config.writeFileEventBut2 != defaults.writeFileEventBut2 ||
           config.writeFileEventSave != defaults.writeFileEventSave || prj->value(keyOf(kind) + "/en", -1) != -1;
}

template <class Items, class Config>
void targetItems(Items& items, const sTargetKind_t& kind, Config& config)
{
    const QString key = keyOf(kind);
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
    if (!kind.isImage)
        return;
    items.item(key + "/wordWidth", config.wordWidth, 1, TargetFile::maxWordWidth);
    const int layouts = kind.layoutNames().size();
    if (layouts > 0)
        items.choice(key + "/layout", config.layout, layouts - 1);
}

template <class Items, class Config>
void allItems(Items& items, Config& config)
{
    items.item("AsmFe/defaultCharset", config.defaultCharset);
    items.choice("AsmFe/behavior/charset", config.behaviorCharset, AsmFeConfig::charsetSilent);
    items.choice("AsmFe/behavior/equ", config.behaviorEqu, AsmFeConfig::equSilent);
    items.choice("AsmFe/behavior/set", config.behaviorSet, AsmFeConfig::setSilent);
}

} // namespace

void AsmFeConfig::rdAsmFeConfig(PrjSettings* prj)
{
    CfgReader<PrjSettings> reader(prj);
    allItems(reader, *this);
    for (const sTargetKind_t& kind : targetKinds())
        targetItems(reader, kind, targets[kind.kind]);
}

void AsmFeConfig::wrAsmFeConfig(PrjSettings* prj) const
{
    CfgWriter<PrjSettings> writer(prj);
    allItems(writer, *this);
    for (const sTargetKind_t& kind : targetKinds()) {
        if (!kind.isImage || isUsed(prj, kind, targets[kind.kind]))
            targetItems(writer, kind, targets[kind.kind]);
    }
}

} // namespace nsModAsmFe
