#pragma once

#include "CfgAccess.h"
#include "CfgTree.h"

/// Serves the settings of an interface from a tree: texts, numbers and lists, colours and fonts.
///
/// @tparam Interface declares value() and setValue() of these types, and font() and setFont()
template <class Interface>
class CfgLookAccess : public CfgAccess<Interface, CfgTree>
{
    using Access = CfgAccess<Interface, CfgTree>;

public:
    using Access::Access;
    using Access::setValue;
    using Access::value;

    QColor value(QString key, QColor dflt) override { return this->tree()->value(key, dflt); }
    void setValue(QString key, QColor value) override { this->tree()->setValue(key, value); }
    QFont font(QString key, QFont dflt) override { return this->tree()->font(key, dflt); }
    void setFont(QString key, QFont value) override { this->tree()->setFont(key, value); }
};
