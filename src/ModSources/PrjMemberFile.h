#pragma once

#include <QDir>
#include <QObject>
#include <QString>

namespace nsModSources {

/// A file of a project. Nothing uses this class yet: its setters do nothing, and its paths are null strings.
class PrjMemberFile : public QObject
{
    Q_OBJECT

public:
    explicit PrjMemberFile(QObject* parent = nullptr);

    void setPrjDir(QDir dir);
    void setRelFilePath(QString path);
    void setAbsFilePath(QString path);
    QString relFilePath() const;
    QString absFilePath() const;

private:
    QDir m_prjDir;
    QString m_filePath;
};

} // namespace nsModSources
