#pragma once

#include <QStyledItemDelegate>

namespace nsModMsg {

/// Draws the lines of the message view: links in the accent colour, one row a message, the full text as tool tip.
class MsgItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// A text of several lines is drawn as one, as all rows have one height.
    QString displayText(const QVariant& value, const QLocale& locale) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

} // namespace nsModMsg
