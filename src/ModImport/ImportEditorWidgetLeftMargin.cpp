#include "ImportEditorWidgetLeftMargin.h"

#include "ImportEditorWidget.h"

#include <QCoreApplication>
#include <QWheelEvent>

namespace nsModImport {

ImportEditorWidgetLeftMargin::ImportEditorWidgetLeftMargin(ImportEditorWidget* editor)
    : QWidget(editor)
    , m_editor(editor)
{
    setCursor(Qt::ArrowCursor);
    setAccessibleName(tr("Line numbers"));
}

QSize ImportEditorWidgetLeftMargin::sizeHint() const
{
    return QSize(m_editor->leftMarginWidth(), 0);
}

void ImportEditorWidgetLeftMargin::paintEvent(QPaintEvent* event)
{
    m_editor->leftMarginPaintEvent(event);
}

void ImportEditorWidgetLeftMargin::wheelEvent(QWheelEvent* event)
{
    // A scroll area takes the wheel from its viewport only.
    QCoreApplication::sendEvent(m_editor->viewport(), event);
}

} // namespace nsModImport
