#include "EditorSupportMenuNode.h"

#include <QAction>
#include <QMenu>
#include <QtDebug>

#include <algorithm>

namespace nsModEditor {

namespace {

bool sortAsc(const EditorSupportMenuNode* a, const EditorSupportMenuNode* b)
{
    return a->name < b->name;
}

} // namespace

EditorSupportMenuNode::EditorSupportMenuNode(const QString& nodeName, QObject* parent)
    : QObject(parent)
    , name(nodeName)
{
}

EditorSupportMenuNode::~EditorSupportMenuNode()
{
    qDeleteAll(children);
    delete action;
    delete menu;
}

EditorSupportMenuNode* EditorSupportMenuNode::child(const QString& childName) const
{
    return m_childOf.value(childName, nullptr);
}

/// The action of the node in its parent menu; null for a node below a leaf.
QAction* EditorSupportMenuNode::menuEntry() const
{
    return menu != nullptr ? menu->menuAction() : action;
}

EditorSupportMenuNode* EditorSupportMenuNode::addChild(const QString& childName, bool inner)
{
    auto* added = new EditorSupportMenuNode(childName);
    // A node below a leaf has no parent menu. A sub menu emits its signals through its parent menu.
    if (menu != nullptr && inner) {
        added->menu = new QMenu(childName, menu);
    } else if (menu != nullptr) {
        added->action = new QAction(childName, nullptr);
        added->action->setData(QVariant::fromValue(added));
    }
    if (sortEn && !m_sorted)
        sort();
    const auto place = sortEn ? std::upper_bound(children.begin(), children.end(), added, sortAsc) : children.end();
    EditorSupportMenuNode* before = place == children.end() ? nullptr : *place;
    m_sorted = m_sorted && (sortEn || children.isEmpty() || !sortAsc(added, children.last()));
    children.insert(place, added);
    m_childOf.insert(childName, added);
    if (menu != nullptr)
        menu->insertAction(before != nullptr ? before->menuEntry() : nullptr, added->menuEntry());
    return added;
}

EditorSupportMenuNode* EditorSupportMenuNode::node(QStringList path)
{
    EditorSupportMenuNode* at = this;
    while (!path.isEmpty()) {
        const QString component = path.takeFirst();
        EditorSupportMenuNode* next = at->child(component);
        at = next != nullptr ? next : at->addChild(component, !path.isEmpty());
    }
    return at;
}

void EditorSupportMenuNode::removeNode(QStringList path)
{
    if (path.isEmpty())
        return;
    EditorSupportMenuNode* at = child(path.takeFirst());
    if (at == nullptr)
        return;
    if (!path.isEmpty()) {
        at->removeNode(path);
        return;
    }
    children.removeOne(at);
    m_childOf.remove(at->name);
    delete at;
}

void EditorSupportMenuNode::setSortEn(QStringList path, bool enabled)
{
    // Only a sub menu can be sorted, so a missing node is created as a sub menu.
    EditorSupportMenuNode* at = this;
    for (const QString& component : path) {
        EditorSupportMenuNode* next = at->child(component);
        at = next != nullptr ? next : at->addChild(component, true);
    }
    at->sortEn = enabled;
}

void EditorSupportMenuNode::sort()
{
    std::stable_sort(children.begin(), children.end(), sortAsc);
    m_sorted = true;
    if (menu == nullptr)
        return;
    for (const EditorSupportMenuNode* entry : qAsConst(children)) {
        menu->removeAction(entry->menuEntry());
        menu->addAction(entry->menuEntry());
    }
}

void EditorSupportMenuNode::print(const QString& indent) const
{
    for (const EditorSupportMenuNode* entry : children) {
        qDebug("%s%s%s", qPrintable(indent), entry->menu != nullptr ? "Menu:   " : "Action: ", qPrintable(entry->name));
        entry->print(indent + "    ");
    }
}

} // namespace nsModEditor
