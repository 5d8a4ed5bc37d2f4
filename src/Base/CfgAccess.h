#pragma once

#include "CfgStore.h"

/// Serves the settings of an interface from a tree: texts, numbers and lists.
///
/// @tparam Interface declares value() and setValue() of these three types
/// @tparam Tree the tree that holds them
template <class Interface, class Tree = CfgStore>
class CfgAccess : public Interface
{
public:
    /// @param tree not owned; must outlive this object
    explicit CfgAccess(Tree* tree)
        : m_tree(tree)
    {
    }

    using Interface::setValue;
    using Interface::value;

    QString value(QString key, QString dflt) override { return m_tree->value(key, dflt); }
    void setValue(QString key, QString value) override { m_tree->setValue(key, value); }
    int value(QString key, int dflt) override { return m_tree->value(key, dflt); }
    void setValue(QString key, int value) override { m_tree->setValue(key, value); }
    QStringList value(QString key, QStringList dflt) override { return m_tree->value(key, dflt); }
    void setValue(QString key, QStringList value) override { m_tree->setValue(key, value); }

protected:
    Tree* tree() const { return m_tree; }

private:
    Tree* m_tree;
};
