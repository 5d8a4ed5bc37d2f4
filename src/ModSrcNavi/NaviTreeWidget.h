#pragma once

#include <QTreeWidget>

namespace nsModSrcNavi {

/// The tree of the navigator.
class NaviTreeWidget : public QTreeWidget
{
    Q_OBJECT

public:
    explicit NaviTreeWidget(QWidget* parent = nullptr);

signals:
    /// A context menu was requested, by mouse or key, for the current item and column.
    void clickedRight(QTreeWidgetItem* item, int column);
    /// Return was pressed on the current item.
    void returnPressed(QTreeWidgetItem* item, int column);

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace nsModSrcNavi
