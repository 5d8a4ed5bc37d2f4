#include "HlpConfig.h"

#include "CfgItems.h"
#include "ModCfgAppHookIf.h"

namespace nsModHlp {

namespace {

template <class Items, class Config>
void allItems(Items items, Config& config)
{
    items.choice(QStringLiteral("ModHlp/hlpIndexSideRight"), config.hlpIndexSideRight, HlpConfig::indexRight);
    items.item(QStringLiteral("ModHlp/showGettingStarted"), config.showGettingStarted);
    items.item(QStringLiteral("ModHlp/showOnlyOneHelpPage"), config.showOnlyOneHelpPage);
}

} // namespace

void HlpConfig::rdHlpConfig(ModCfgAppHookIf* cfg)
{
    allItems(CfgReader<ModCfgAppHookIf>(cfg), *this);
}

void HlpConfig::wrHlpConfig(ModCfgAppHookIf* cfg) const
{
    allItems(CfgWriter<ModCfgAppHookIf>(cfg), *this);
}

} // namespace nsModHlp
