#include "PrjConfig.h"

#include <QCoreApplication>

namespace nsModPrj {

PrjConfig::PrjConfig()
    : cfgTitle(QCoreApplication::translate("nsModPrj::PrjConfig", "Untitled"))
    , cfgVersion(QStringLiteral("0.1"))
{
}

} // namespace nsModPrj
