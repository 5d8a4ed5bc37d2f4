#pragma once

#include "BatchFiles.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QStringList>

namespace nsBatch {
class BatchProject;
}

namespace nsModAsmFe {
class AsmFeFileHndlr;
class IODev;
struct AsmProgram;
} // namespace nsModAsmFe

namespace nsNalvoAsm {

class AsmOutputRequest;

/// Writes the files that the options of a run ask for beside those of the project, and refuses to overwrite a file of
/// the run. What goes wrong is an error of the run.
class AsmOutputFiles
{
    Q_DECLARE_TR_FUNCTIONS(AsmOutputFiles)

public:
    /// @param project assembled; not owned
    /// @param file path of its project file
    AsmOutputFiles(nsBatch::BatchProject& project, const QString& file);

    using Text = QByteArray (*)(const nsModAsmFe::AsmProgram&, const nsModAsmFe::AsmFeFileHndlr&);
    /// A listing or the like. @param file empty: nothing is wanted; "-": standard output
    void writeReport(const QString& file, Text text);
    void writeImages(const AsmOutputRequest& request);
    /// The rule about all files so far. @param targets what stands in place of them; may be empty
    void writeDepfile(const QString& file, const QStringList& targets);

    /// All files so far, absolute, but for those of the project itself.
    const QStringList& written() const { return m_written; }

private:
    bool writeImage(const AsmOutputRequest& request, nsModAsmFe::IODev* dev);
    bool mayWrite(const QString& file);
    void writeText(const QString& file, const QByteArray& text);
    void fail(const QString& text);

    nsBatch::BatchProject& m_project;
    QString m_file;
    nsBatch::ProjectFiles m_taken;
    QStringList m_written;
};

} // namespace nsNalvoAsm
