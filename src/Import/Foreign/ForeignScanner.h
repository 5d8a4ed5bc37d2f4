#pragma once

#include "ForeignProgram.h"

namespace nsImport {

/// Cuts the lines of one file into their parts. Comments may go over several lines, so it is a state.
class ForeignScanner
{
public:
    explicit ForeignScanner(const ForeignDialect& dialect)
        : m_dialect(dialect)
    {
    }

    /// Fills the parts of a statement from its text.
    void scan(ForeignStatement* statement);
    /// Is a comment open at the end of the file?
    bool isOpen() const { return m_inComment; }
    /// From now on all lines are comments.
    void end() { m_ended = true; }

    /// The position after the quoted text that begins here; the position itself if none begins.
    /// @param apostrophes do they hold a character?
    static int afterQuoted(const QString& text, int pos, bool apostrophes);

private:
    void cutComments(ForeignStatement* statement);
    int commentAt(const QString& text, int pos, bool* isBlock) const;
    void cutLabels(ForeignStatement* statement, int* pos) const;
    void cutWord(ForeignStatement* statement, int* pos) const;
    void cutOperands(ForeignStatement* statement, int pos) const;
    ForeignPiece wordAt(const QString& code, int pos) const;

    const ForeignDialect& m_dialect;
    bool m_inComment = false;
    bool m_ended = false;
};

} // namespace nsImport
