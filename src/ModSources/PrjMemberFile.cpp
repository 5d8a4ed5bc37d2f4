#include "PrjMemberFile.h"

namespace nsModSources {

PrjMemberFile::PrjMemberFile(QObject* parent)
    : QObject(parent)
{
}

void PrjMemberFile::setPrjDir(QDir) {}

void PrjMemberFile::setRelFilePath(QString) {}

void PrjMemberFile::setAbsFilePath(QString) {}

QString PrjMemberFile::relFilePath() const
{
    return QString();
}

QString PrjMemberFile::absFilePath() const
{
    return QString();
}

} // namespace nsModSources
