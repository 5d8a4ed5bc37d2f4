#pragma once

#include "ProcCoreConfig.h"
#include "ProgramImage.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

namespace nsProc {
struct ProcTable;
}

namespace nsImport {

class RescueFlow;

struct RescueOptions
{
    /// What becomes of a word that is no instruction.
    enum eInvalid_t {
        eInvalidMarked,   ///< a line that the assembler refuses
        eInvalidReplaced, ///< the instruction with the word 0, and a comment with the word
    };

    eInvalid_t invalid = eInvalidMarked;
    QString name;           ///< of the image, for the comment at the start
    int intVectorAddr = -1; ///< where the processor lets it be set; -1: that of a new project
};

/// A word that the sources can not have.
struct RescueInvalidWord
{
    int address = 0;
    quint32 word = 0;
    QString reason;         ///< for the user
    bool reachable = false; ///< the program may run into it
};

/// Sources that were made from an image, with what their project needs.
struct RescueResult
{
    bool ok = false; ///< assembling the source gives the image again, but for the words of `invalid`
    QString error;   ///< for the user; empty if ok
    QByteArray source;
    nsProc::ProcCoreConfig settings; ///< of the processor: page size, size of the scratchpad, interrupt vector
    QVector<RescueInvalidWord> invalid;
    QStringList notes;   ///< for the user: what he should know of the result
    int wordCount = 0;   ///< words of the image that the source has
    int filledCount = 0; ///< zeros of the image that the source leaves out, as unused addresses are zero
    int addedCount = 0;  ///< instructions with the word 0 that had to be added as targets of jumps
};

/// Makes sources from an image alone.
class Rescue
{
public:
    /// @param table the processor; must live as long as this object
    explicit Rescue(const nsProc::ProcTable& table, const RescueOptions& options = RescueOptions());

    /// Makes the source and assembles it in memory: only what gives the image again is ok.
    RescueResult run(const ProgramImage& image) const;

private:
    static void addFindings(const nsProc::ProcTable& table, const ProgramImage& image, const RescueFlow& flow,
                            RescueResult* result);
    bool check(const ProgramImage& image, const RescueFlow& flow, const QByteArray& source,
               const nsProc::ProcCoreConfig& settings, QString* error) const;

    const nsProc::ProcTable& m_table;
    RescueOptions m_options;
};

} // namespace nsImport
