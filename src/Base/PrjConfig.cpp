#include "PrjConfig.h"

#include "CfgStore.h"

#include <QCoreApplication>

namespace nsModPrj {

namespace {

const QLatin1String keyTitle("PrjInfo/title");
const QLatin1String keyVersion("PrjInfo/version");
const QLatin1String keyComment("PrjInfo/comment");

} // namespace

PrjConfig::PrjConfig()
    : cfgTitle(QCoreApplication::translate("nsModPrj::PrjConfig", "Untitled"))
    , cfgVersion(QStringLiteral("0.1"))
{
}

void PrjConfig::rdPrjConfig(CfgStore* tree)
{
    cfgTitle = tree->value(keyTitle, QString());
    cfgVersion = tree->value(keyVersion, QString());
    cfgComment = tree->value(keyComment, QString());
}

void PrjConfig::wrPrjConfig(CfgStore* tree) const
{
    tree->setValue(keyTitle, cfgTitle);
    tree->setValue(keyVersion, cfgVersion);
    tree->setValue(keyComment, cfgComment);
}

} // namespace nsModPrj
