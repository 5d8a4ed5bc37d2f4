#pragma once

#include "ModActionHookIf.h"

#include <QActionGroup>
#include <QList>

namespace nsModGui {

/// The actions of the main window itself.
class GuiActions : public QActionGroup
{
    Q_OBJECT

public:
    enum eAction_t { eActionSetDefaultWindowSize = 0 };

    explicit GuiActions(QObject* parent);

    /// All actions, or one of them.
    void setEnabled(bool enabled);
    void setEnabled(eAction_t action, bool enabled);

    QList<QAction*> menuActions(ModActionHookIf::eActionClass_t actionClass) const;
    QList<QAction*> toolBarActions(ModActionHookIf::eActionClass_t actionClass) const;

signals:
    void triggered(nsModGui::GuiActions::eAction_t action);

private slots:
    void handleAction(QAction* action);
};

} // namespace nsModGui
