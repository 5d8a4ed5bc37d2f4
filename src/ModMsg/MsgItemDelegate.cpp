#include "MsgItemDelegate.h"

#include "Colors.h"
#include "MsgViewer.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QToolTip>

namespace nsModMsg {

namespace {

bool isLink(const QModelIndex& index)
{
    return index.column() != MsgViewer::eColumnMessage && !index.data(MsgViewer::urlRole).toUrl().isEmpty();
}

} // namespace

QString MsgItemDelegate::displayText(const QVariant& value, const QLocale&) const
{
    QString text = value.toString();
    return text.replace(QLatin1Char('\n'), QLatin1Char(' '));
}

void MsgItemDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    if (!isLink(index))
        return;
    option->palette.setColor(QPalette::Text, Colors::of(Colors::eAccent));
    option->palette.setColor(QPalette::HighlightedText, Colors::of(Colors::eAccent));
    option->font.setUnderline(option->state & QStyle::State_MouseOver);
}

bool MsgItemDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                                const QModelIndex& index)
{
    if (event == nullptr || view == nullptr || event->type() != QEvent::ToolTip)
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const QString text = index.data(Qt::DisplayRole).toString();
    const QRect visible = view->visualRect(index) & view->viewport()->rect();
    const bool cut = sizeHint(option, index).width() > visible.width() || text.contains(QLatin1Char('\n'));
    // Messages are plain text, whatever they look like.
    if (cut && !text.isEmpty())
        QToolTip::showText(event->globalPos(),
                           QStringLiteral("<p style='white-space:pre-wrap'>%1</p>").arg(text.toHtmlEscaped()), view);
    else
        QToolTip::hideText();
    return true;
}

} // namespace nsModMsg
