#pragma once

#include "ForeignSymbols.h"
#include "ImageProof.h"
#include "ImportStep.h"
#include "ProgramWriter.h"

#include "ProcCoreConfig.h"

#include <QStringList>

namespace nsImport {

class ProgramLayout;

/// Makes a project of a foreign program: reads, resolves, writes, and assembles the result in memory, to see that it
/// comes to the words that were read.
class ForeignImport
{
    Q_DECLARE_TR_FUNCTIONS(nsImport::ForeignImport)

public:
    /// Knobs.
    struct Options
    {
        QString source;                            ///< the main source
        const ForeignDialect* dialect = nullptr;   ///< null: told by the words of the source
        QStringList folders;                       ///< where included files are as well
        ForeignStamp stamp;                        ///< when the old tool ran
        int memorySize = 0;                        ///< words of the memory; 0: not known
        QString output = QStringLiteral("output"); ///< folder of the output files, relative to the project
    };

    explicit ForeignImport(const Options& options);

    /// Asked before each step; where it ends the import there is no result.
    void setWatch(const ImportWatch& watch) { m_watch = watch; }
    /// What an image of the old tool tells, as the knobs do.
    void setReference(const ForeignStamp& stamp, int memorySize);
    /// @return false: there is no result, or it has lines without a counterpart; see messages() and hasResult()
    bool run();

    /// Can the result be written? It may have lines that the assembler refuses.
    bool hasResult() const { return m_hasResult; }
    const ImportMessages& messages() const { return m_messages; }
    const ForeignProgram& program() const { return m_program; }
    const ForeignDialect& dialect() const { return *m_program.dialect; }
    const QVector<ImportSource>& sources() const { return m_sources; }
    /// Content of the project file.
    const QByteArray& project() const { return m_project; }
    /// Name of the project file and of what it writes, without a suffix.
    QString name() const;
    /// What the result assembles to; empty if it does not.
    const ProgramImage& image() const { return m_image; }
    /// Compares the result with the image that the old tool has made.
    /// @param unlisted addresses of fillers() that the reference does not have, which is no difference: a log lists the
    /// lines of the program alone
    ImageProofResult prove(const ProgramImage& reference, int* unlisted) const;
    /// Addresses where the result has an instruction and the program has none: it is what the memory holds there.
    const QVector<int>& fillers() const { return m_fillers; }
    /// The words of the program, those of lines without a counterpart left out.
    int wordCount() const { return m_wordCount; }
    /// Lines of the result that the assembler refuses.
    int brokenCount() const;
    /// Files of the program; absolute, without links.
    const QStringList& filesRead() const { return m_filesRead; }
    /// The line of the program that a line of the result comes from; null if there is none.
    /// @param line counted from 1
    const ForeignStatement* origin(const QString& source, int line) const;

private:
    bool goesOn(eImportStep_t step) const { return !m_watch || m_watch(step); }
    bool read();
    void write(const ProgramLayout& layout);
    void writeProject(int size);
    void takeOutputs(class ImportProject* project);
    void takeVhdl(const ForeignStatement& statement, class ImportProject* project);
    bool check(const ProgramWriter& writer);
    void report(eImportMsg_t type, const QStringList& arguments, const ForeignStatement& statement);

    Options m_options;
    ImportWatch m_watch;
    ImportMessages m_messages;
    ForeignProgram m_program;
    QStringList m_filesRead;
    QVector<ImportSource> m_sources;
    nsProc::ProcCoreConfig m_settings;
    QByteArray m_project;
    ProgramImage m_image;
    QVector<int> m_fillers;
    int m_wordCount = 0;
    bool m_hasResult = false;
};

} // namespace nsImport
