#pragma once

#include <QList>
#include <QMap>
#include <QObject>
#include <QString>

/// One node of a configuration tree: a name, a text, attributes, and children in the order of their creation.
///
/// A node owns its children. Pointers to nodes live until the parent removes the node or the tree is cleared. Trees of
/// any depth can be built and released; nothing here recurses.
class CfgNode : public QObject
{
    Q_OBJECT

public:
    explicit CfgNode(QObject* parent = nullptr);
    ~CfgNode() override;

    /// The key component of this node; empty for the root of a tree.
    QString name() const;
    void setName(QString name);

    QString value() const;
    void setValue(QString value);

    /// @return the attribute's value, or a null string when it does not exist
    QString attribute(QString name) const;
    /// Inserts or replaces.
    void setAttribute(QString name, QString value);
    void removeAttribute(QString name);
    void removeAttributes();
    /// All attributes, sorted by name.
    QMap<QString, QString> attributes() const;

    bool hasChild() const;
    /// A copy of the list; the nodes stay in the ownership of this node.
    QList<CfgNode*> childs() const;
    /// @return the first child of exactly that name, or null
    CfgNode* child(QString name) const;
    /// Appends a child of that name, whether or not there is one already.
    CfgNode* addChild(QString name);
    /// Takes the child out and deletes it with its subtree. Ignores a node that is not a child of this node.
    void removeChild(CfgNode* child);
    /// The same for the first child of that name.
    void removeChild(QString name);

    /// Deletes all children, empties attributes, name and value.
    void clear();

    /// Prints the subtree to the debug output; each level indents by four blanks.
    void print(QString indent) const;

private:
    void deleteChilds();

    QMap<QString, QString> m_attributes;
    QString m_name;
    QString m_value;
    QList<CfgNode*> m_childs;
};
