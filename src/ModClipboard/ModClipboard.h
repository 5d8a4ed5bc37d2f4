#pragma once

#include "ClipboardActions.h"

#include "ModActionPluginIf.h"
#include "ModClipboardHookIf.h"
#include "ModClipboardPluginIf.h"
#include "ModGuiPluginIf.h"
#include "ModPluginIf.h"

#include <QHash>
#include <QObject>

class QMainWindow;
class QWidget;

namespace nsModClipboard {

/// Routes cut, copy and paste to the plug-in that owns the current page of the tabs.
///
/// The pages decide themselves what the actions do and when they are on; for a page that is not registered they are
/// disabled.
class ModClipboard : public QObject,
                     public ModClipboardHookIf,
                     public ModPluginIf,
                     public ModGuiPluginIf,
                     public ModActionPluginIf
{
    Q_OBJECT

public:
    /// @param window parent, may be null
    explicit ModClipboard(QMainWindow* window);

    /// Gives the client its hook; its widgets are registered one by one.
    void registerPlugin(ModClipboardPluginIf* plugin);

    // ModClipboardHookIf
    void setFeatureEnable(eClipboardFeature_t features, bool enable) override;
    void registerPluginWidget(ModClipboardPluginIf* plugin, QWidget* widget) override;
    void unregisterPluginWidget(QWidget* widget) override;

    // ModPluginIf
    void modRegisterPlugins(QList<ModPluginIf*> modules) override;
    void modInit() override;
    void modInitIntermod() override {}
    void modRun() override {}
    bool modExitRequest() override { return true; }
    void modExitIntermod() override {}
    void modExit() override;

    // ModGuiPluginIf
    void removeWidgetRequest(QWidget*) override {}
    void setFocus(ModGuiHookIf::eLocation_t location, ModGuiPluginIf* plugin, QWidget* widget) override;

    // ModActionPluginIf
    QList<QAction*> menuActions(ModActionHookIf::eActionClass_t actionClass) override;
    QList<QAction*> toolBarActions(ModActionHookIf::eActionClass_t actionClass) override;

private slots:
    void handleAction(nsModClipboard::ClipboardActions::eAction_t action);

private:
    QWidget* currentPage() const;
    void switchAllOff();

    QHash<QWidget*, ModClipboardPluginIf*> m_plugins; ///< the keys are compared, never followed
    ClipboardActions* m_actions = nullptr;            ///< between modInit() and modExit()
};

} // namespace nsModClipboard
