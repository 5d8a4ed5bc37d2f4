#pragma once

#include <QStyledItemDelegate>

class QListView;

namespace nsModConfig {

/// Draws the entries of the list of pages: as wide as the list, high enough for icon and title in the user's font, the
/// icon in its own colours also where it is selected.
class ConfigListDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// @param view the list, which owns the delegate
    explicit ConfigListDelegate(QListView* view);

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    QListView* m_view = nullptr;
};

} // namespace nsModConfig
