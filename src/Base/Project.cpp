#include "Project.h"

#include "ModMsgHookIf.h"
#include "PrjFile.h"

#include <QFileInfo>

namespace nsModPrj {

Project::Project(CfgStore* tree, PrjConfig* config)
    : CfgAccess(tree)
    , m_config(config)
{
}

// --- open and close ---

bool Project::open(const QString& file, ModMsgHookIf* msg)
{
    // A file with an error may have left a part in the tree.
    tree()->clear();
    if (!readFile(tree(), file, msg))
        return false;
    m_path = QFileInfo(file).absoluteFilePath();
    if (msg != nullptr)
        msg->showInfoMessage(tr("Open project: ") + file);
    m_config->rdPrjConfig(tree());
    return true;
}

void Project::reportOpened(ModMsgHookIf* msg)
{
    if (msg != nullptr)
        msg->showInfoMessage(tr("Open project: Done"));
}

void Project::close()
{
    m_path.clear();
    tree()->clear();
}

// --- files ---

bool Project::readFile(CfgStore* tree, const QString& file, ModMsgHookIf* msg)
{
    QString message;
    if (PrjFile::read(tree, file, &message))
        return true;
    if (msg != nullptr)
        msg->showErrorMessage(message);
    return false;
}

bool Project::writeFile(CfgStore* tree, const QString& file, ModMsgHookIf* msg)
{
    QString message;
    QString reason;
    QStringList dropped;
    const bool success = PrjFile::write(tree, file, &dropped, &message, &reason);
    if (msg == nullptr)
        return success;
    for (const QString& key : qAsConst(dropped))
        msg->showWarningMessage(tr("Project setting can not be saved: ") + key);
    if (!success)
        msg->showErrorMessage(message);
    if (!reason.isEmpty())
        msg->showInfoMessage(tr("Reason: ") + reason);
    return success;
}

// --- place ---

QDir Project::dir() const
{
    return isOpen() ? QFileInfo(m_path).dir() : QDir(QLatin1String(""));
}

QString Project::fileName() const
{
    return isOpen() ? QFileInfo(m_path).fileName() : QString();
}

QString Project::convToRelPath(QString path)
{
    return isOpen() ? dir().relativeFilePath(path) : path;
}

QString Project::convToAbsPath(QString path)
{
    return isOpen() ? dir().absoluteFilePath(path) : path;
}

} // namespace nsModPrj
