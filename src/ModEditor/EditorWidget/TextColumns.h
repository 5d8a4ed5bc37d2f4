#pragma once

#include <QString>
#include <QVector>

namespace nsModEditor {

/// Where the characters of a line stand, in columns counted from 0: a tab goes to the next multiple of its width, a
/// character of several code units (surrogates, combining marks) takes one column.
class TextColumns
{
public:
    /// @param tabWidth columns, from 1
    TextColumns(const QString& text, int tabWidth);

    /// Column of a position in the text.
    int columnOf(int index) const;
    /// The position at or before the column; the end of the text for a column after it.
    int indexAt(int column) const;
    /// The position after the character that begins at the position; the end of the text for its end.
    int indexAfter(int index) const;
    /// The column after the last character.
    int width() const { return m_columns.last(); }

private:
    // The bounds of the characters, ascending; the last one is the end of the text.
    QVector<int> m_indices;
    QVector<int> m_columns;
};

} // namespace nsModEditor
