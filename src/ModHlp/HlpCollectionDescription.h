#pragma once

#include <QString>

namespace nsModHlp {

/// How the collection names itself.
struct HlpCollectionDescription
{
    QString hlpNamespace = QStringLiteral("NV");
    QString virtualFolder = QStringLiteral("Nalvo");
};

} // namespace nsModHlp
