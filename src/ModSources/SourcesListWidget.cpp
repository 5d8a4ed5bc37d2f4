#include "SourcesListWidget.h"

#include "Colors.h"

#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QUrl>

#include <algorithm>

namespace nsModSources {

namespace {

const int emptyTextMargin = 16;
const int hintLines = 6; ///< height that the list asks for; it grows with the available space

QStringList localFiles(const QMimeData* data)
{
    QStringList paths;
    for (const QUrl& url : data->urls()) {
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    }
    return paths;
}

} // namespace

SourcesListWidget::SourcesListWidget(QWidget* parent)
    : QListWidget(parent)
{
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setDragDropMode(QAbstractItemView::DragDrop);
    setDefaultDropAction(Qt::MoveAction);
    setDropIndicatorShown(true);
    setTextElideMode(Qt::ElideMiddle);
    setUniformItemSizes(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void SourcesListWidget::setEmptyText(const QString& text)
{
    m_emptyText = text;
    viewport()->update();
}

QSize SourcesListWidget::sizeHint() const
{
    return {QListWidget::sizeHint().width(), hintLines * fontMetrics().height()};
}

QList<int> SourcesListWidget::selectedRows() const
{
    QList<int> rows;
    for (QListWidgetItem* item : selectedItems())
        rows.append(row(item));
    std::sort(rows.begin(), rows.end());
    return rows;
}

void SourcesListWidget::focusInEvent(QFocusEvent* event)
{
    QListWidget::focusInEvent(event);
    // If the focus comes by the keyboard, a row is selected: without a selection the keys would do nothing.
    const bool byKey = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason ||
                       event->reason() == Qt::ShortcutFocusReason;
    if (byKey && count() > 0 && selectedItems().isEmpty())
        setCurrentRow(qMax(0, currentRow()), QItemSelectionModel::ClearAndSelect);
}

void SourcesListWidget::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Delete))
        emit removeRequested();
    else if (event->key() == Qt::Key_Up && event->modifiers() == Qt::ControlModifier)
        emit moveUpRequested();
    else if (event->key() == Qt::Key_Down && event->modifiers() == Qt::ControlModifier)
        emit moveDownRequested();
    else
        QListWidget::keyPressEvent(event);
}

void SourcesListWidget::paintEvent(QPaintEvent* event)
{
    QListWidget::paintEvent(event);
    // Without a project there is nothing that files could be added to.
    if (count() > 0 || !isEnabled())
        return;
    QPainter painter(viewport());
    painter.setPen(Colors::of(Colors::eTextSecond));
    const QRect place =
        viewport()->rect().adjusted(emptyTextMargin, emptyTextMargin, -emptyTextMargin, -emptyTextMargin);
    painter.drawText(place, Qt::AlignCenter | Qt::TextWordWrap, m_emptyText);
}

void SourcesListWidget::dragEnterEvent(QDragEnterEvent* event)
{
    if (event->source() != this && !localFiles(event->mimeData()).isEmpty())
        event->acceptProposedAction();
    else
        QListWidget::dragEnterEvent(event);
}

void SourcesListWidget::dragMoveEvent(QDragMoveEvent* event)
{
    if (event->source() != this && !localFiles(event->mimeData()).isEmpty())
        event->acceptProposedAction();
    else
        QListWidget::dragMoveEvent(event);
}

void SourcesListWidget::dropEvent(QDropEvent* event)
{
    if (event->source() == this) {
        moveRowsTo(rowForDrop(event->pos()));
        // Set to a copy, so that the view does not remove the dragged rows itself.
        event->setDropAction(Qt::CopyAction);
        event->accept();
        return;
    }
    const QStringList paths = localFiles(event->mimeData());
    if (paths.isEmpty()) {
        event->ignore();
        return;
    }
    event->acceptProposedAction();
    emit filesDropped(paths);
}

int SourcesListWidget::rowForDrop(const QPoint& place) const
{
    const QModelIndex index = indexAt(place);
    if (!index.isValid())
        return count();
    return place.y() > visualRect(index).center().y() ? index.row() + 1 : index.row();
}

void SourcesListWidget::moveRowsTo(int target)
{
    const QList<int> rows = selectedRows();
    QList<QListWidgetItem*> moved;
    int place = target;
    for (auto it = rows.crbegin(); it != rows.crend(); ++it) {
        moved.prepend(takeItem(*it));
        if (*it < target)
            --place;
    }
    for (QListWidgetItem* item : qAsConst(moved)) {
        insertItem(place++, item);
        item->setSelected(true);
    }
    if (!moved.isEmpty())
        setCurrentItem(moved.first(), QItemSelectionModel::NoUpdate);
    emit orderChanged();
}

} // namespace nsModSources
