#include "ImportProgramConfig.h"

#include "CfgItems.h"
#include "ModCfgAppHookIf.h"

namespace nsModImport {

namespace {

template <class Items, class Config>
void allItems(Items items, Config& config)
{
    items.choice("ModImport/program/mode", config.mode, ImportProgramConfig::modeImage);
    items.item("ModImport/program/source", config.source);
    items.item("ModImport/program/dialect", config.dialect);
    items.item("ModImport/program/folders", config.folders);
    items.item("ModImport/program/reference", config.reference);
    items.item("ModImport/program/folder", config.folder);
    items.item("ModImport/program/image", config.image);
    items.item("ModImport/program/processor", config.processor);
    items.item("ModImport/program/imageFolder", config.imageFolder);
}

} // namespace

void ImportProgramConfig::rdConfig(ModCfgAppHookIf* settings)
{
    allItems(CfgReader<ModCfgAppHookIf>(settings), *this);
}

void ImportProgramConfig::wrConfig(ModCfgAppHookIf* settings) const
{
    allItems(CfgWriter<ModCfgAppHookIf>(settings), *this);
}

} // namespace nsModImport
