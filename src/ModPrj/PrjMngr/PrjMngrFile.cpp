#include "PrjMngrFile.h"

#include "MyFileSelect.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace nsModPrj {

QString PrjMngrFile::suffix()
{
    return QStringLiteral("nalvo");
}

QStringList PrjMngrFile::nameFilters()
{
    return {QCoreApplication::translate("nsModPrj::PrjMngrFile", "Nalvo project files(*.nalvo)"),
            QCoreApplication::translate("nsModPrj::PrjMngrFile", "Any files(*)")};
}

void PrjMngrFile::setup(MyFileSelect* field)
{
    field->setDefaultSuffix(suffix());
    field->setNameFilters(nameFilters());
}

QString PrjMngrFile::fullPath(const QString& typed)
{
    const QFileInfo info(typed);
    const QString path = info.absoluteFilePath();
    return info.suffix().isEmpty() && !info.exists() ? path + QLatin1Char('.') + suffix() : path;
}

} // namespace nsModPrj
