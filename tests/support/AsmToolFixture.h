#pragma once

#include "AsmProject.h"
#include "QtPrinters.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QJsonObject>
#include <QList>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

#include <functional>

inline void PrintTo(const QByteArray& text, std::ostream* stream)
{
    *stream << '"' << text.left(2000).toStdString() << '"';
}

/// How a run ended and what it printed.
struct AsmToolResult
{
    int status = -1; ///< exit status; -1 if the program did not start or died
    QByteArray out;
    QByteArray err;

    /// The lines of standard error, without the ends.
    QStringList errLines() const;
    /// The lines of standard output as JSON objects. A line that is none fails the test.
    QList<QJsonObject> objects() const;
};

/// The environment of a run.
struct AsmToolSetup
{
    QString folder;          ///< working folder; empty: that of the project
    QProcessEnvironment env; ///< filled by the fixture
    QString program = NALVO_TOOL;
    QString stdinFile = "/dev/null";
    QString stdoutFile;            ///< empty: what is printed comes back in the result
    QString stderrFile;            ///< the same
    std::function<void()> inChild; ///< called in the child before the program starts; may only make system calls
};

/// Starts a program after some system calls in the child.
class ToolProcess : public QProcess
{
public:
    void setup(const QString& program, const QStringList& arguments, const AsmToolSetup& setup);

protected:
    void setupChildProcess() override
    {
        if (m_inChild)
            m_inChild();
    }

private:
    std::function<void()> m_inChild;
};

/// Starts a batch program on projects in a temporary folder. Nothing is read from or written to the folders of
/// whoever runs the tests.
class AsmToolTest : public ::testing::Test
{
protected:
    AsmToolTest();

    /// The folder of the project, an absolute path, and files in it.
    QString path(const QString& name = QString()) const;
    void write(const QString& name, const QByteArray& text) const;
    QByteArray read(const QString& name) const;
    bool exists(const QString& name) const { return QFile::exists(path(name)); }
    void mkdir(const QString& name) const { QDir(path()).mkpath(name); }

    /// Writes the project file p.nalvo, or another one.
    void writeProject(const AsmProject& project, const QString& name = "p.nalvo") const;
    /// Writes p.nalvo and a.psm: a program without errors and warnings, of which hexText() is the output out.hex.
    void writeGoodProject(const QByteArray& source = goodSource()) const;
    /// Three instructions at the addresses 0, 1 and 0x3FF.
    static QByteArray goodSource();
    static QByteArray hexText();
    /// A template that uses all words of the program, as a run with an incomplete template fails.
    static QByteArray vhdlTemplate(const QByteArray& head = QByteArray());

    /// The setup of a usual run; a test changes it and hands it to run().
    AsmToolSetup setup() const;
    AsmToolResult run(const QStringList& arguments) const { return run(arguments, setup()); }
    AsmToolResult run(const QStringList& arguments, const AsmToolSetup& setup) const;

    /// Names, sizes, modes, times and contents of all files below a folder.
    QStringList snapshot(const QString& folder) const;

private:
    QTemporaryDir m_dir;
};
