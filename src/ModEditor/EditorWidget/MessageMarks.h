#pragma once

#include "EditorDocument.h"

#include <QColor>
#include <QStringList>
#include <QTextCursor>

#include <vector>

class QPainter;
class QTextBlock;

namespace nsModEditor {

/// The places of a document that messages are about: wavy lines below the text, and marks in the margin.
///
/// Places move with the text. Their number is bounded, as each of them is kept up to date at every key.
class MessageMarks
{
public:
    static constexpr size_t maxCount = 1000;

    explicit MessageMarks(QPlainTextEdit* edit)
        : m_edit(edit)
    {
    }

    /// @param marks in the order of the lines; those beyond the document are moved to its end
    void set(const QVector<sMessageMark>& marks);
    QStringList texts(int line) const;
    /// Null if there is no such mark.
    QTextCursor place(int index) const;
    /// The worst grade of a line; -1 without a mark.
    int gradeOf(const QTextBlock& line) const;
    static QColor colorOf(int grade);

    /// Paints the wavy lines of the blocks that are visible.
    void paint(QPainter* painter, const QTextBlock& firstVisible, const QPointF& offset, int bottom) const;

private:
    struct sMark
    {
        QTextCursor cursor; ///< the marked text is selected
        int grade;
        QString text;
    };

    void paintMark(QPainter* painter, const sMark& mark, const QTextBlock& block, const QPointF& origin) const;

    QPlainTextEdit* m_edit; ///< not owned
    std::vector<sMark> m_marks;
};

} // namespace nsModEditor
