#pragma once

#include <QHash>
#include <QPair>
#include <QString>

namespace nsModAsmFe {

/// Finds an element by namespace and name. Of several elements of one name the first one entered is found.
template <class Element>
class SymbolHash
{
public:
    void clear() { m_elements.clear(); }

    void insert(const QString& nameSpace, const QString& name, Element* element)
    {
        const QPair<QString, QString> key(nameSpace, name);
        if (!m_elements.contains(key))
            m_elements.insert(key, element);
    }

    Element* find(const QString& nameSpace, const QString& name) const
    {
        return m_elements.isEmpty() ? nullptr : m_elements.value(qMakePair(nameSpace, name), nullptr);
    }

private:
    QHash<QPair<QString, QString>, Element*> m_elements;
};

/// The name as a user writes it from outside: with its namespace and "::" where it has one.
inline QString qualifiedName(const QString& nameSpace, const QString& name)
{
    return nameSpace.isEmpty() ? name : nameSpace + QLatin1String("::") + name;
}

} // namespace nsModAsmFe
