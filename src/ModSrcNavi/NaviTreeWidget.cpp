#include "NaviTreeWidget.h"

#include <QContextMenuEvent>
#include <QKeyEvent>

namespace nsModSrcNavi {

NaviTreeWidget::NaviTreeWidget(QWidget* parent)
    : QTreeWidget(parent)
{
    setObjectName(QStringLiteral("codeNavi"));
    setAccessibleName(tr("Entries of the sources"));
    setColumnCount(1);
    setHeaderHidden(true);
    setAlternatingRowColors(false);
    setAnimated(true);
    setUniformRowHeights(true);
    // A double click goes to the line and must not fold a group at the same time.
    setExpandsOnDoubleClick(false);
}

void NaviTreeWidget::contextMenuEvent(QContextMenuEvent* event)
{
    event->accept();
    if (currentItem() != nullptr)
        emit clickedRight(currentItem(), currentColumn());
}

void NaviTreeWidget::keyPressEvent(QKeyEvent* event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isReturn || currentItem() == nullptr) {
        QTreeWidget::keyPressEvent(event);
        return;
    }
    event->accept();
    // A key that is held down triggers once only.
    if (!event->isAutoRepeat())
        emit returnPressed(currentItem(), currentColumn());
}

} // namespace nsModSrcNavi
