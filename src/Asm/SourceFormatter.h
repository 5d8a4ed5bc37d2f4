#pragma once

#include <QByteArray>
#include <QString>

namespace nsModAsmFe {

/// Puts the parts of source lines into columns: labels, instructions, arguments, comments.
///
/// The words that a source is assembled to, and its messages but for their columns, stay the same: only blanks between
/// the parts of a line change, and the case of instructions. What stands in an argument, in a string or in a comment is
/// left as it is, and so is a line that the formatter is not sure about. Formatting twice is the same as once.
class SourceFormatter
{
public:
    enum eCase_t { eCaseKeep, eCaseUpper, eCaseLower };

    /// Columns are counted from 0.
    struct sStyle_t
    {
        int labelColumn = 2; ///< of labels that do not begin at the start of the line; those stay there
        int instructionColumn = 8;
        int argumentColumn = 16;
        int commentColumn = 40; ///< of comments that follow something; a blank at least is before them
        eCase_t instructionCase = eCaseUpper;
    };

    SourceFormatter() = default;
    explicit SourceFormatter(const sStyle_t& style)
        : m_style(style)
    {
    }

    /// @param line without its line end
    QString formattedLine(const QString& line) const;
    /// The content of a file: line ends, byte order mark and encoding stay as they are.
    QByteArray formatted(const QByteArray& source) const;

private:
    QString codeLine(const QString& line) const;

    sStyle_t m_style;
};

} // namespace nsModAsmFe
