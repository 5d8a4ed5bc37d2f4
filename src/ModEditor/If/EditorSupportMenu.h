#pragma once

#include "EditorSupportMenuNode.h"

#include <QVector>

#include <functional>

class QPoint;

namespace nsModEditor {

/// The insertion menu: a tree of text snippets that others fill, and the menu that shows it.
///
/// Paths have "/" between their components; empty components do not count.
class EditorSupportMenu : public EditorSupportMenuNode
{
    Q_OBJECT

public:
    explicit EditorSupportMenu(QObject* parent = nullptr);

    /// Adds an entry, or gives the one of this path another content.
    /// @param data text to insert, or path of a template file
    void setEntry(QString path, QString data, eType_t type);
    /// Removes the entry with all below it; an unknown path does nothing.
    void removeEntry(QString path);
    void setEntrySortEn(QString path, bool enabled);
    /// Has entries made when the menu is about to be seen, for a part that is large, the same in every run, and filled
    /// by nobody else.
    /// @param filler calls setEntry() of the menu that it is given; called once, or never
    void fillLater(std::function<void(EditorSupportMenu*)> filler);
    /// Makes what is to be made later.
    void makeReady();
    void setEnabled(bool enabled);
    /// Runs the menu at the position; a separator and this menu follow its own entries, if there is anything to insert.
    void showMenu(QMenu* menu, const QPoint& pos);
    /// Adds this menu to another one, if there is anything to insert.
    void addSupportMenu(QMenu* menu);

signals:
    /// The user has chosen an entry.
    void insertText(QString text);

private slots:
    void handleAction(QAction* action);

private:
    QVector<std::function<void(EditorSupportMenu*)>> m_fillers;
};

} // namespace nsModEditor
