#pragma once

#include "ForeignProgram.h"
#include "ImportMsg.h"

#include <QCoreApplication>
#include <QMap>
#include <QStringList>

namespace nsImport {

/// One thing that a source of the result holds.
struct LayoutItem
{
    enum eKind_t {
        eStatement, ///< of the program
        eAddress,   ///< places what follows
        eFiller,    ///< an instruction where the program has none
    };

    eKind_t kind = eStatement;
    int statement = -1;
    int address = 0;
};

/// A source of the result.
struct LayoutSource
{
    int file = 0; ///< index in ForeignProgram::files
    int part = 1; ///< of those that the file becomes
    QVector<LayoutItem> items;
};

/// Puts the statements of a foreign program into an order that the result can have: each source is read once and as a
/// whole, and addresses ascend.
///
/// A file that includes another one in the middle of its code becomes several sources. Definitions can be used before
/// their line, so only code decides.
class ProgramLayout
{
    Q_DECLARE_TR_FUNCTIONS(nsImport::ProgramLayout)

public:
    /// @param program, messages not owned
    ProgramLayout(ForeignProgram& program, ImportMessages& messages);

    /// @param memorySize least words of the memory, for the unused ones; above 0
    void arrange(int memorySize);

    const QVector<LayoutSource>& sources() const { return m_sources; }
    /// Labels that can not stand at their line, by the address of the instruction that they stand at.
    const QMap<int, QStringList>& looseLabels() const { return m_looseLabels; }
    /// Does the label stand at its line?
    bool isInPlace(int symbol) const { return m_inPlace.at(symbol); }
    /// Does the line place code?
    bool placesCode(int statement) const { return m_placesCode.at(statement); }
    /// Addresses where the result has an instruction and the program has none; ascending.
    const QVector<int>& fillers() const { return m_fillers; }
    /// One more than the highest address with an instruction.
    int size() const { return m_size; }

private:
    struct Block
    {
        int first = 0;
        int last = 0; ///< after the last statement
        int file = 0;
        int start = 0; ///< address
        int end = 0;
        bool hasCode = false;
        bool isPlaced = false; ///< begins with an address
        int order = 0;
    };

    void findBlocks();
    void measure(Block* block);
    void markOccupied();
    void findLooseLabels();
    void sortBlocks();
    void attachDefinitions();
    void addFillers(int memorySize);
    void makeSources();
    LayoutSource& sourceFor(int file);
    void addBlock(const Block& block, int* expected);
    void addFillersUpTo(int address, int* expected);
    void report(eImportMsg_t type, const QStringList& arguments, int statement);

    ForeignProgram& m_program;
    ImportMessages& m_messages;
    QVector<Block> m_blocks;
    QVector<Block> m_standAlone;           ///< of files without code
    QVector<QVector<Block>> m_definitions; ///< by block: those in front of it
    QVector<QVector<Block>> m_remainders;  ///< by block: those behind it
    QVector<int> m_occupied;               ///< statement by address, -1: none
    QVector<bool> m_inPlace;
    QVector<bool> m_placesCode;
    QMap<int, QStringList> m_looseLabels;
    QVector<int> m_fillers; ///< addresses, ascending
    int m_nextFiller = 0;
    QVector<LayoutSource> m_sources;
    QHash<int, int> m_parts; ///< by file
    int m_size = 0;
};

} // namespace nsImport
