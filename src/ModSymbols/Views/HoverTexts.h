#pragma once

#include <QString>

namespace nsModEditor {
class EditorDocument;
}
namespace nsModProcessor {
class SimValuesIf;
}
namespace nsProc {
struct ProcTable;
}

namespace nsModSymbols {

class ProgramNames;

/// What a tip says about a word of the text: a name's value, what an instruction does, and in a simulation the value of
/// a register, a cell or a port.
class HoverTexts
{
public:
    explicit HoverTexts(ProgramNames* names)
        : m_names(names)
    {
    }

    /// @param values null for none; not owned
    void setValues(nsModProcessor::SimValuesIf* values) { m_values = values; }
    /// The messages about the line, and what the word at the column is. @return HTML, empty for nothing
    QString tipAt(const nsModEditor::EditorDocument* document, int line, int column);

private:
    QString wordText(const QString& lineText, const QString& word, int start);
    QString symbolText(const nsModEditor::EditorDocument* document, int line, int column, int* number, bool* isNumber);
    QString simulatedText(const QString& lineText, int start, int number) const;

    ProgramNames* m_names;
    nsModProcessor::SimValuesIf* m_values = nullptr;
};

} // namespace nsModSymbols
