#pragma once

#include "LateContent.h"
#include "ProjectFiles.h"

#include <QDir>
#include <QTreeWidget>
#include <QWidget>

class QToolButton;

namespace nsModSrcNavi {

/// The tree of the panel: sources can be dragged to another place among the sources, and nowhere else.
class FileTree : public QTreeWidget
{
    Q_OBJECT

public:
    explicit FileTree(QWidget* parent = nullptr);

signals:
    /// @param row of the source in its group before; @param target place that it is to be put at, counted without it
    void moved(int row, int target);
    void openRequested(QTreeWidgetItem* item);
    void removeRequested();
    /// The current source is to go up (-1) or down (1).
    void stepRequested(int step);

protected:
    void dropEvent(QDropEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    /// Place among the sources that a drop would have; -1: none.
    int targetOf(const QDropEvent* event) const;
};

/// The panel with the files of the project: its sources in their order, templates and outputs, each with its state.
class FileListWidget : public QWidget
{
    Q_OBJECT

public:
    explicit FileListWidget(QWidget* parent = nullptr);

    /// Shows files, relative to the folder of the project.
    /// @param currentSource row of the source whose line becomes the current one; -1: the one that was it stays it
    void setFiles(const ProjectFiles& files, const QDir& dir, int currentSource = -1);
    void clear();
    /// Makes the line of a file the current one. @return false: the file is not listed
    bool select(const QString& file);
    /// The file of the current line; empty if there is none.
    QString currentFile() const;

    QSize sizeHint() const override;

signals:
    void openRequested(const QString& file);
    void addRequested();
    void removeRequested(const ProjectFiles::sSource_t& source);
    /// The user wants the source at another place of the order, counted without it.
    void moveRequested(const ProjectFiles::sSource_t& source, int target);

private:
    void makeContent();
    QToolButton* addButton(const char* name, const QString& text, const QString& toolTip);
    QTreeWidgetItem* addGroup(const QString& title, const QStringList& files, bool isSource, bool isOutput);
    int sourceRow(const QTreeWidgetItem* item) const;
    /// Does not scroll. @return false: the file is not listed
    bool makeCurrent(const QString& file);
    bool isCurrentSeen() const;
    void noteFolded();
    void moveSource(int row, int target);
    void moveCurrent(int step);
    void remove(int row);
    void updateButtons();
    void showMenu(const QPoint& place);

    QToolButton* m_add = nullptr;
    QToolButton* m_remove = nullptr;
    QToolButton* m_up = nullptr;
    QToolButton* m_down = nullptr;
    FileTree* m_tree = nullptr;
    ProjectFiles m_files;
    QDir m_dir;
    QStringList m_folded; ///< titles of the groups that the user has folded
    LateContent m_content;
};

} // namespace nsModSrcNavi
