#include "ConfigListDelegate.h"

#include <QIcon>
#include <QListView>
#include <QWindow>

namespace nsModConfig {

namespace {

const QSize iconSize(48, 48);
const int gap = 8;
const int titleMargin = 7; // what the style leaves free beside a text, and the border

} // namespace

ConfigListDelegate::ConfigListDelegate(QListView* view)
    : QStyledItemDelegate(view)
    , m_view(view)
{
}

QSize ConfigListDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const QSize wanted = index.data(Qt::SizeHintRole).toSize();
    // The final width of the list, which may not have been laid out yet.
    const int width = m_view->maximumWidth() - 1 - 2 * m_view->spacing();
    const int height = iconSize.height() + option.fontMetrics.height() + 2 * gap;
    return wanted.expandedTo(QSize(width, height));
}

void ConfigListDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    QWindow* window = m_view->window()->windowHandle();
    option->decorationSize = iconSize;
    option->decorationAlignment = Qt::AlignHCenter | Qt::AlignBottom;
    // The list has a fixed width: a long title gets a smaller font instead of being cut off.
    const int room = option->rect.width() - 2 * titleMargin;
    const int title = option->fontMetrics.horizontalAdvance(option->text);
    option->textElideMode = Qt::ElideNone;
    if (room > 0 && title > room) {
        option->font.setPointSizeF(option->font.pointSizeF() * room / title);
        option->fontMetrics = QFontMetrics(option->font);
    }
    if (!option->icon.isNull()) {
        // The style would tint the icon of the selected entry.
        const QPixmap pixmap = option->icon.pixmap(window, iconSize);
        option->icon.addPixmap(pixmap, QIcon::Selected);
    }
}

} // namespace nsModConfig
