#pragma once

#include <QHash>
#include <QList>
#include <QMetaType>
#include <QObject>
#include <QString>
#include <QStringList>

class QAction;
class QMenu;

namespace nsModEditor {

/// One entry of the insertion menu: a sub menu, or a leaf that inserts a text or the contents of a template file.
class EditorSupportMenuNode : public QObject
{
    Q_OBJECT

public:
    enum eType_t { typeMenu = 0, typeText = 1, typeFile = 2 };

    /// @param name entry text; one component of a path
    explicit EditorSupportMenuNode(const QString& name, QObject* parent = nullptr);
    ~EditorSupportMenuNode() override;

    /// The node of the path, made with all nodes in between where it is missing.
    /// @param path components, at least one
    EditorSupportMenuNode* node(QStringList path);
    /// Deletes the node of the path with all below it; an unknown path does nothing.
    void removeNode(QStringList path);
    /// Switches the sorting of the children of the path's node, which is made where it is missing.
    void setSortEn(QStringList path, bool enabled);
    /// Sorts the children by their names, and the entries of the menu with them.
    void sort();
    /// Dumps the subtree to the debug output.
    void print(const QString& indent) const;

    eType_t type = typeMenu;
    QString name;
    QString data;              ///< text to insert, or path of the template file
    QMenu* menu = nullptr;     ///< sub menu of an inner node; owned
    QAction* action = nullptr; ///< entry of a leaf; owned
    bool sortEn = true;
    QList<EditorSupportMenuNode*> children; ///< owned

private:
    EditorSupportMenuNode* child(const QString& childName) const;
    EditorSupportMenuNode* addChild(const QString& childName, bool inner);
    QAction* menuEntry() const;

    QHash<QString, EditorSupportMenuNode*> m_childOf;
    bool m_sorted = true; ///< the children are in order, so that a new one goes straight to its place
};

} // namespace nsModEditor

Q_DECLARE_METATYPE(nsModEditor::EditorSupportMenuNode*)
