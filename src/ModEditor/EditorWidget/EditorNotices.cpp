#include "EditorNotices.h"

#include "MyNoticeBar.h"

#include <QApplication>
#include <QEvent>
#include <QVBoxLayout>

namespace nsModEditor {

EditorNotices::EditorNotices(QWidget* parent)
    : QWidget(parent)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
}

void EditorNotices::add(MyNoticeBar* bar)
{
    layout()->addWidget(bar);
    bar->show();
    emit changed();
}

MyNoticeBar* EditorNotices::firstBar() const
{
    for (MyNoticeBar* bar : findChildren<MyNoticeBar*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (!bar->isHidden())
            return bar;
    }
    return nullptr;
}

int EditorNotices::heightFor(int width) const
{
    if (firstBar() == nullptr)
        return 0;
    return layout()->hasHeightForWidth() ? layout()->totalHeightForWidth(width) : layout()->totalSizeHint().height();
}

void EditorNotices::switchFocus()
{
    MyNoticeBar* bar = firstBar();
    if (bar == nullptr || isAncestorOf(QApplication::focusWidget()))
        parentWidget()->setFocus(Qt::ShortcutFocusReason);
    else
        bar->firstControl()->setFocus(Qt::ShortcutFocusReason);
}

bool EditorNotices::event(QEvent* event)
{
    const bool result = QWidget::event(event);
    if (event->type() == QEvent::LayoutRequest)
        emit changed();
    return result;
}

} // namespace nsModEditor
