#pragma once

#include "ModActionHookIf.h"

#include <QActionGroup>
#include <QList>

namespace nsModConfig {

/// The entry that opens the configuration dialog.
class ActionsConfig : public QActionGroup
{
    Q_OBJECT

public:
    enum eAction_t { eActionConfigure = 0 };
    Q_ENUM(eAction_t)

    explicit ActionsConfig(QObject* parent = nullptr);

    /// All actions, or one of them.
    void setEnabled(bool enabled);
    void setEnabled(eAction_t action, bool enabled);

    /// Owned by the group; empty for the classes that it has nothing for.
    QList<QAction*> menuActions(ModActionHookIf::eActionClass_t actionClass) const;
    QList<QAction*> toolBarActions(ModActionHookIf::eActionClass_t actionClass) const;

signals:
    void triggered(nsModConfig::ActionsConfig::eAction_t action);

private slots:
    void handleAction(QAction* action);
};

} // namespace nsModConfig
