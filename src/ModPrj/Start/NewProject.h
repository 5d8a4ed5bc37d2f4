#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

class CfgStore;

namespace nsModPrj {

/// What a new project is given at once, besides its title. Nothing of it: the project holds its title alone.
struct NewProjectOptions
{
    QString processor; ///< display name; empty: none is chosen
    bool firstSource = false;
    bool hex = false;
    bool mem = false;
    QString vhdlTemplate;    ///< absolute path; empty: no VHDL output
    QString verilogTemplate; ///< absolute path; empty: no Verilog output

    bool isEmpty() const;
};

/// Fills a new project: the processor, the outputs, a first source, copies of the templates. No file that exists is
/// changed: it becomes part of the project as it is.
class NewProject
{
    Q_DECLARE_TR_FUNCTIONS(nsModPrj::NewProject)

public:
    /// @param prjFile absolute path of the project file
    NewProject(const QString& prjFile, const QString& title, const NewProjectOptions& options);

    /// Names of the files that belong to the project beside its own file: sources, templates and outputs, relative.
    QStringList files() const;
    /// Writes the source and the templates, and all settings into the tree.
    /// @param error why it failed
    bool fill(CfgStore* tree, QString* error) const;

    /// Names of all processors, sorted.
    static QStringList processors();
    /// The shipped templates with this ending (such as "vhd") for a program memory, as paths, the usual one first.
    static QStringList templates(const QString& suffix);
    /// Folder of the shipped templates; empty if they are missing.
    static QString templateFolder();

private:
    QString base() const;
    QString entity() const;
    QString sourceText() const;
    bool writeNew(const QString& name, const QByteArray& content, QString* error) const;
    bool copyTemplate(const QString& from, QString* error) const;

    QString m_dir;
    QString m_name; ///< of the project file, without suffix
    QString m_title;
    NewProjectOptions m_options;
};

} // namespace nsModPrj
