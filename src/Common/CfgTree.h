#pragma once

#include "CfgStore.h"

#include <QColor>
#include <QFont>

/// The settings tree of the window's modules: CfgStore with colours and fonts, which need Qt Gui.
class CfgTree : public CfgStore
{
    Q_OBJECT

public:
    explicit CfgTree(QObject* parent = nullptr);

    using CfgStore::setValue;
    using CfgStore::value;

    /// A malformed colour reads as an invalid QColor.
    QColor value(QString key, QColor dflt);
    /// Stored without its alpha channel.
    void setValue(QString key, QColor value);
    /// A text that describes no font leaves the default.
    QFont font(QString key, QFont dflt);
    void setFont(QString key, QFont value);
};
