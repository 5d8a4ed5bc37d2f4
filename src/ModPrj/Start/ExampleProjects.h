#pragma once

#include <QCoreApplication>
#include <QStringList>
#include <QVector>

namespace nsModPrj {

/// An example that ships beside the program.
struct ExampleProject
{
    QString folder;  ///< name of its folder
    QString file;    ///< name of the project file in it
    QString title;   ///< of the project
    QString comment; ///< a line that says what it shows; may be empty
};

/// The examples, and copies of them: an example is never opened at its place, as a run would write there.
class ExampleProjects
{
    Q_DECLARE_TR_FUNCTIONS(nsModPrj::ExampleProjects)

public:
    /// @param dir folder of the examples; empty or missing: there are none
    explicit ExampleProjects(const QString& dir);
    /// Those beside the running program.
    static ExampleProjects shipped();

    /// All examples that can be read, by their titles.
    QVector<ExampleProject> list() const;
    /// A name below the folder that nothing has yet: that of the example, or with a number.
    static QString freeName(const QString& targetDir, const ExampleProject& example);
    /// Copies an example, and the HDL templates that it names into the folder beside the copy. Nothing that exists is
    /// overwritten, and after a failure there is no copy.
    /// @param targetDir existing folder
    /// @param error why the result is empty
    /// @return path of the copy's project file; empty: it failed
    QString copy(const ExampleProject& example, const QString& targetDir, QString* error) const;

private:
    bool copyTemplates(const QString& exampleDir, const QString& targetDir, QString* error) const;

    QString m_dir;
};

} // namespace nsModPrj
