#pragma once

#include "CfgAccess.h"
#include "PrjConfig.h"
#include "PrjSettings.h"

#include <QCoreApplication>
#include <QDir>
#include <QString>

class ModMsgHookIf;

namespace nsModPrj {

/// The open project: the place of its file, and the settings and the title that were read from there. It is open
/// exactly while the path of its file is not empty.
class Project : public CfgAccess<PrjSettings>
{
    Q_DECLARE_TR_FUNCTIONS(nsModPrj::Project)

public:
    /// @param tree filled and emptied by this object, together with the title; the settings are read and written there
    /// @param config title, version and comment
    /// Both are not owned and must outlive this object.
    Project(CfgStore* tree, PrjConfig* config);

    /// Reads a project file into the tree in place of what that holds, and reports that or why it could not be read. To
    /// be called while no project is open.
    /// @param msg may be null, also for the other operations
    /// @return false: there still is none
    bool open(const QString& file, ModMsgHookIf* msg);
    /// Reports that the project is open for all who have a part in it.
    static void reportOpened(ModMsgHookIf* msg);
    /// Writes the tree into the file of the open project, as writeFile().
    bool write(ModMsgHookIf* msg) { return writeFile(tree(), m_path, msg); }
    /// Forgets the file and empties the tree; the title stays.
    void close();

    bool isOpen() const { return !m_path.isEmpty(); }
    /// Absolute path of the project file; empty without a project.
    const QString& path() const { return m_path; }
    /// Folder of the project file, QDir("") without a project.
    QDir dir() const;
    /// File name without folder, a null string without a project.
    QString fileName() const;
    const PrjConfig& config() const { return *m_config; }

    // PrjSettings
    QString convToRelPath(QString path) override;
    QString convToAbsPath(QString path) override;

    /// Reads a project file into a tree and reports what is wrong with it.
    static bool readFile(CfgStore* tree, const QString& file, ModMsgHookIf* msg);
    /// Writes a tree as a project file and reports what is wrong.
    static bool writeFile(CfgStore* tree, const QString& file, ModMsgHookIf* msg);

private:
    PrjConfig* m_config;
    QString m_path;
};

} // namespace nsModPrj
