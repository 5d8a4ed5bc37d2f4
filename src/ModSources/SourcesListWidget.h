#pragma once

#include <QListWidget>

namespace nsModSources {

/// The list of the project's files: rows can be dragged to another place, and files dropped from outside.
class SourcesListWidget : public QListWidget
{
    Q_OBJECT

public:
    explicit SourcesListWidget(QWidget* parent = nullptr);

    /// What an empty list shows.
    void setEmptyText(const QString& text);

    QSize sizeHint() const override;

    /// Rows of the selection, ascending.
    QList<int> selectedRows() const;

    /// The row before which something goes that is dropped at the place, 0 to count().
    /// @param place in coordinates of the viewport
    int rowForDrop(const QPoint& place) const;
    /// Moves the selected rows, in their order, to the place before a row.
    /// @param target row before the move, 0 to count()
    void moveRowsTo(int target);

signals:
    /// Local files were dropped on the list.
    /// @param paths absolute paths
    void filesDropped(QStringList paths);
    void removeRequested();
    void moveUpRequested();
    void moveDownRequested();
    /// Rows have been dragged to another place.
    void orderChanged();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    QString m_emptyText;
};

} // namespace nsModSources
