#include "ProcConfig.h"

#include "PrjSettings.h"

namespace nsModProcessor {

namespace {

const QLatin1String keyProcessor("ModProcessor/processor");

} // namespace

void ProcConfig::rdProcConfig(PrjSettings* prj)
{
    processor = prj->value(keyProcessor, QString());
}

void ProcConfig::wrProcConfig(PrjSettings* prj) const
{
    prj->setValue(keyProcessor, processor);
}

} // namespace nsModProcessor
