#pragma once

#include "ModEditorPluginIf.h"
#include "ModMsgPluginIf.h"
#include "ModPluginIf.h"

#include <QObject>
#include <QStringList>

namespace nsModTemplates {

/// Fills the insertion menu from template files.
///
/// A template file is a text: free text, one or more lines "menuItem = path/of/the/entry", a line "template =", and
/// after it the text that is inserted.
class ModTemplates : public QObject, public ModPluginIf, public ModMsgPluginIf, public ModEditorPluginIf
{
    Q_OBJECT

public:
    explicit ModTemplates(QObject* parent = nullptr);

    /// The template folder of a program: the first that exists of the places where one may lie.
    /// @param programDir folder of the program file
    /// @return absolute path; empty if there is none
    static QString templateDir(const QString& programDir);
    /// All files below the folder, as sorted paths.
    static QStringList scanDirectory(const QString& dir);

    /// Adds the entries of all templates of the folder. A later file of a menu path wins over an earlier one.
    void initTemplates(const QString& dir);
    /// Adds the entries of the template folder of the running program.
    void initTemplates();

    // ModPluginIf
    void modRegisterPlugins(QList<ModPluginIf*>) override {}
    void modInit() override {}
    void modInitIntermod() override;
    void modRun() override {}
    bool modExitRequest() override { return true; }
    void modExitIntermod() override {}
    void modExit() override {}

private:
    void setupSupportMenu(const QString& file);
    void setupSupportMenuFile(const QString& path, const QString& file);
};

} // namespace nsModTemplates
