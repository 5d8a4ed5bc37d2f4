#pragma once

#include <QString>
#include <QVector>

class ModAsmFePluginIf;

namespace nsProc {
struct ProcTable;
}

namespace nsModSymbols {

class ProgramNames;

/// What can stand at a place.
enum eWordKind_t {
    wordInstruction = 1 << 0,
    wordDirective = 1 << 1,
    wordRegister = 1 << 2,
    wordBank = 1 << 3,
    wordFlag = 1 << 4,
    wordSwitch = 1 << 5,
    wordConstant = 1 << 6,
    wordLabel = 1 << 7,
    wordParameter = 1 << 8, ///< of a `#SET`
    wordRange = 1 << 9,     ///< of an `#ORG`
    wordAttribute = 1 << 10,
    wordNavigator = 1 << 11,
};

/// A word that can be inserted.
struct sCompletion
{
    QString word;
    QString note;  ///< what it is, in a few words; empty for a symbol with a value
    int kind = 0;  ///< eWordKind_t
    int value = 0; ///< of a symbol
    int page = -1; ///< of a label

    /// As the list shows it. A list shows a few of thousands, so the texts of values are made here.
    QString shownNote() const;
};

/// What is typed at a place of a line, and what fits there.
struct sCompletionPlace
{
    QString prefix;    ///< what is typed of the word
    int kinds = 0;     ///< eWordKind_t of what can stand there at all; 0 for nothing
    int bestKinds = 0; ///< those that fit the argument
};

/// The words that complete what is typed: of the language, of the processor and of the program of the last run.
///
/// Made anew after a run, by prepare() or by the first look-up. A look-up takes a walk over all of them.
class CompletionWords
{
public:
    /// Reads the hook at each call; it may be missing. Not owned.
    CompletionWords(const ModAsmFePluginIf* assembler, ProgramNames* names);

    void clear() { m_isMade = false; }
    /// Makes the words where they are not there yet, before anybody waits for them.
    void prepare();
    /// Where the end of the text is. @param text of the line up to the cursor
    sCompletionPlace placeOf(const QString& text);
    /// What fits, those of the best kinds first, and within each group in alphabetical order.
    QVector<sCompletion> wordsAt(const sCompletionPlace& place);

private:
    void make();
    void add(const QString& word, const QString& note, eWordKind_t kind);
    void sort();
    void addInstructions(const nsProc::ProcTable* table);
    void addLanguage();
    void addProcessor(const nsProc::ProcTable* table);
    void addProgram();
    int kindsOfArgument(const QString& instruction, int number) const;

    const ModAsmFePluginIf* m_assembler;
    ProgramNames* m_names;
    const nsProc::ProcTable* m_table = nullptr;
    bool m_isMade = false;
    QVector<sCompletion> m_words; ///< in alphabetical order
};

} // namespace nsModSymbols
