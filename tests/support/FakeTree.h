#pragma once

#include <QColor>
#include <QDate>
#include <QFont>
#include <QHash>
#include <QString>
#include <QStringList>
#include <QVariant>

/// The settings of a fake: typed values under keys.
class FakeTree
{
public:
    template <class Type>
    Type get(const QString& key, const Type& dflt) const
    {
        return values.contains(key) ? values.value(key).template value<Type>() : dflt;
    }
    template <class Type>
    void set(const QString& key, const Type& value)
    {
        values.insert(key, QVariant::fromValue(value));
    }

    QHash<QString, QVariant> values;
};
