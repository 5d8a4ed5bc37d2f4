#include "SourcesConfig.h"

#include "ModMsgHookIf.h"
#include "PrjSettings.h"

#include <QDir>
#include <QFileInfo>

namespace nsModSources {

namespace {

const QLatin1String keySrcFiles("sources/srcFiles");

} // namespace

void SourcesConfig::rdSourcesConfig(PrjSettings* prj, ModMsgHookIf* msg)
{
    clearSourcesConfig();
    if (prj == nullptr)
        return;
    for (const QString& entry : prj->value(keySrcFiles, QStringList())) {
        // The list has one spelling of each path, also outside of the project's folder.
        const QString path = QDir::cleanPath(prj->convToAbsPath(entry));
        const QFileInfo info(path);
        if (!info.exists()) {
            if (msg != nullptr)
                msg->showErrorMessage(tr("File does not exist: ") + path);
            m_vanishedFiles.append(path);
            continue;
        }
        if (msg != nullptr && !info.isReadable())
            msg->showWarningMessage(tr("No read access for file: ") + path);
        if (msg != nullptr && !info.isWritable())
            msg->showWarningMessage(tr("File is not writable: ") + path);
        srcFiles.append(path);
    }
}

void SourcesConfig::wrSourcesConfig(PrjSettings* prj, ModMsgHookIf* msg)
{
    QStringList list;
    for (const QString& path : qAsConst(srcFiles))
        list.append(prj->convToRelPath(path));
    prj->setValue(keySrcFiles, list);
    for (const QString& path : qAsConst(m_vanishedFiles)) {
        if (msg != nullptr && !srcFiles.contains(path))
            msg->showWarningMessage(tr("Removed from the project, as it did not exist: ") + path);
    }
    m_vanishedFiles.clear();
}

void SourcesConfig::clearSourcesConfig()
{
    srcFiles.clear();
    m_vanishedFiles.clear();
}

} // namespace nsModSources
