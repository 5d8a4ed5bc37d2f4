#include "ViewPlace.h"

#include <QPlainTextEdit>
#include <QScrollBar>

namespace nsModEditor {

sViewPlace sViewPlace::of(const QPlainTextEdit* view)
{
    const QTextCursor cursor = view->textCursor();
    return {cursor.position(), cursor.anchor(), view->verticalScrollBar()->value(),
            view->horizontalScrollBar()->value()};
}

void sViewPlace::show(QPlainTextEdit* view) const
{
    const int end = view->document()->characterCount() - 1;
    QTextCursor cursor = view->textCursor();
    cursor.setPosition(qBound(0, anchor, end));
    cursor.setPosition(qBound(0, position, end), QTextCursor::KeepAnchor);
    view->setTextCursor(cursor);
    view->verticalScrollBar()->setValue(top);
    view->horizontalScrollBar()->setValue(left);
}

} // namespace nsModEditor
