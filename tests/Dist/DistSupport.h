#pragma once

#include <QByteArray>
#include <QMap>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

/// What the tests of this folder share: the programs, and what their help says.
namespace DistSupport {

/// All programs that are installed.
QStringList programs();
/// Path of a program in the build tree.
QString programFile(const QString& program);
/// A file as it is installed, below the folder of shared data.
QString installed(const QString& name);
QString sourceFile(const QString& name);
/// The content of a file; a file that can not be read fails the test.
QString content(const QString& path);

struct sResult_t
{
    int status = -1; ///< -1: the program did not start, died or did not end
    QString out;
    QString err;
};

/// The environment without a display, a language and settings of whoever runs the tests.
QProcessEnvironment environment();
/// Runs a program to its end.
/// @param folder working folder; empty: the present one
sResult_t run(const QString& program, const QStringList& arguments, const QString& folder = QString(),
              const QProcessEnvironment& env = environment());

/// What "--help" says: each name of each option, "-l" as well as "--listing", with true if it takes a value.
QMap<QString, bool> helpOptions(const QString& program);
/// The same as texts: "-v", or "-l VALUE" for an option that takes a value.
QStringList listed(const QMap<QString, bool>& options);
/// "--help" as it is printed.
QString helpText(const QString& program);
/// The release, as "--version" says it.
QString version();

} // namespace DistSupport
