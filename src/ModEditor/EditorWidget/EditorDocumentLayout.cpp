#include "EditorDocumentLayout.h"

#include <QTextBlock>
#include <QTextLayout>

namespace nsModEditor {

namespace {

/// The lines end where the text ends.
bool fits(const QTextBlock& block)
{
    const QTextLayout* layout = block.layout();
    if (layout->lineCount() == 0)
        return true;
    const QTextLine last = layout->lineAt(layout->lineCount() - 1);
    return last.textStart() + last.textLength() == block.length() - 1;
}

} // namespace

EditorDocumentLayout::EditorDocumentLayout(QTextDocument* document)
    : QPlainTextDocumentLayout(document)
{
}

QRectF EditorDocumentLayout::blockBoundingRect(const QTextBlock& block) const
{
    if (m_unsettled && block.isValid() && !fits(block))
        QTextBlock(block).clearLayout();
    return QPlainTextDocumentLayout::blockBoundingRect(block);
}

} // namespace nsModEditor
