#include "CfgNode.h"

#include <QDebug>
#include <QPair>

CfgNode::CfgNode(QObject* parent)
    : QObject(parent)
{
}

CfgNode::~CfgNode()
{
    deleteChilds();
}

QString CfgNode::name() const
{
    return m_name;
}

void CfgNode::setName(QString name)
{
    m_name = name;
}

QString CfgNode::value() const
{
    return m_value;
}

void CfgNode::setValue(QString value)
{
    m_value = value;
}

QString CfgNode::attribute(QString name) const
{
    return m_attributes.value(name);
}

void CfgNode::setAttribute(QString name, QString value)
{
    m_attributes.insert(name, value);
}

void CfgNode::removeAttribute(QString name)
{
    m_attributes.remove(name);
}

void CfgNode::removeAttributes()
{
    m_attributes.clear();
}

QMap<QString, QString> CfgNode::attributes() const
{
    return m_attributes;
}

bool CfgNode::hasChild() const
{
    return !m_childs.isEmpty();
}

QList<CfgNode*> CfgNode::childs() const
{
    return m_childs;
}

CfgNode* CfgNode::child(QString name) const
{
    for (CfgNode* node : m_childs) {
        if (node->m_name == name)
            return node;
    }
    return nullptr;
}

CfgNode* CfgNode::addChild(QString name)
{
    // Without a QObject parent: the list of children alone defines the ownership, and a deep tree is deleted without
    // recursion.
    CfgNode* node = new CfgNode(nullptr);
    node->m_name = name;
    m_childs.append(node);
    return node;
}

void CfgNode::removeChild(CfgNode* child)
{
    if (m_childs.removeOne(child))
        delete child;
}

void CfgNode::removeChild(QString name)
{
    removeChild(child(name));
}

void CfgNode::clear()
{
    deleteChilds();
    m_attributes.clear();
    m_name.clear();
    m_value.clear();
}

void CfgNode::print(QString indent) const
{
    const QString step(4, QLatin1Char(' '));
    QList<QPair<const CfgNode*, QString>> open{qMakePair(this, indent)};
    while (!open.isEmpty()) {
        const QPair<const CfgNode*, QString> entry = open.takeLast();
        const CfgNode* node = entry.first;
        QString line = entry.second + node->m_name;
        for (auto it = node->m_attributes.cbegin(); it != node->m_attributes.cend(); ++it)
            line += QLatin1String(" [") + it.key() + QLatin1Char('=') + it.value() + QLatin1Char(']');
        if (!node->m_value.isEmpty())
            line += QLatin1String(" = ") + node->m_value;
        qDebug().noquote() << line;
        for (int i = node->m_childs.size() - 1; i >= 0; --i)
            open.append(qMakePair(static_cast<const CfgNode*>(node->m_childs.at(i)), entry.second + step));
    }
}

void CfgNode::deleteChilds()
{
    QList<CfgNode*> doomed;
    doomed.swap(m_childs);
    while (!doomed.isEmpty()) {
        CfgNode* node = doomed.takeLast();
        doomed.append(node->m_childs);
        node->m_childs.clear();
        delete node;
    }
}
