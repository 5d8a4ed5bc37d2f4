#pragma once

#include <QString>
#include <QStringList>

class ModSourcesPluginIf;
class QWidget;

/// The ordered list of the project's sources. Served by nsModSources::ModSources.
class ModSourcesHookIf
{
public:
    virtual ~ModSourcesHookIf() = default;

    virtual void registerPlugin(ModSourcesPluginIf* plugin) = 0;
    virtual void unregisterPlugin(ModSourcesPluginIf* plugin) = 0;

    /// Is the file one of the project's sources? Asks the user to add it if it is not.
    /// @param path absolute path; an empty one answers false
    virtual bool chkProjectMembership(QString path) = 0;
    /// A copy of the list: absolute paths, in project order.
    virtual QStringList files() = 0;
    /// A source was written: notifies all clients.
    virtual void setFileContentChanged() = 0;

    /// Replaces the list: other files, or another order. Notifies all clients if it has changed.
    /// @param files absolute paths; a file that a project lists twice stays listed twice
    /// @return false: the list is being edited in the settings dialog, or no project is open
    virtual bool setFiles(QStringList files) = 0;
    /// Asks for files and adds them as the settings page does: those beneath the project's folder, each once.
    virtual void addFilesByDialog(QWidget* parent) = 0;
};
