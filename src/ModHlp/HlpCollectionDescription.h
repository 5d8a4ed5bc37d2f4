#pragma once

#include <QString>
#include <QUrl>

namespace nsModHlp {

/// How the collection names itself.
struct HlpCollectionDescription
{
    QString hlpNamespace = QStringLiteral("NV");
    QString virtualFolder = QStringLiteral("Nalvo");

    /// @param path of a file in the collection, with a slash in front
    QUrl fileUrl(const QString& path) const
    {
        return QUrl(QStringLiteral("qthelp://") + hlpNamespace + '/' + virtualFolder + path);
    }
    /// The file that says which page has which id.
    QUrl pageTableUrl() const { return fileUrl(QStringLiteral("/pageIdRefList/pageIdRefList.csv")); }
};

} // namespace nsModHlp
