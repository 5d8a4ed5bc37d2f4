#include "EditorWidgetLeftMargin.h"

#include "EditorWidget.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QWheelEvent>

namespace nsModEditor {

EditorWidgetLeftMargin::EditorWidgetLeftMargin(EditorWidget* editor)
    : QWidget(editor)
    , m_editor(editor)
{
    setAttribute(Qt::WA_Hover);
    setContextMenuPolicy(Qt::CustomContextMenu);
    setCursor(Qt::ArrowCursor);
}

QSize EditorWidgetLeftMargin::sizeHint() const
{
    return QSize(m_editor->leftMarginWidth(), 0);
}

void EditorWidgetLeftMargin::paintEvent(QPaintEvent* event)
{
    m_editor->leftMarginPaintEvent(event);
}

void EditorWidgetLeftMargin::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        QWidget::mousePressEvent(event);
        return;
    }
    if (event->x() > maxMarkX) {
        event->ignore();
        return;
    }
    const int line = m_editor->blockNumberFromPos(event->y());
    if (event->modifiers() == Qt::ControlModifier)
        m_editor->setSimStartPointer(line);
    else if (event->modifiers() == Qt::ShiftModifier)
        m_editor->setBookmark(line);
    else
        m_editor->setSimBreakpoint(line);
    event->accept();
    update();
}

void EditorWidgetLeftMargin::wheelEvent(QWheelEvent* event)
{
    // A scroll area takes the wheel from its viewport only.
    QCoreApplication::sendEvent(m_editor->viewport(), event);
}

} // namespace nsModEditor
