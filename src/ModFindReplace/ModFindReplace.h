#pragma once

#include "FindReplaceActions.h"
#include "FindReplaceWidget.h"

#include "ModActionPluginIf.h"
#include "ModFindReplaceHookIf.h"
#include "ModFindReplacePluginIf.h"
#include "ModGuiPluginIf.h"
#include "ModPluginIf.h"

#include <QHash>
#include <QObject>
#include <QPointer>

namespace nsModFindReplace {

/// One search bar for all pages of the tabs that register with it. It does not search itself: it calls the plug-in of
/// the current page, which reads the parameters through the hook.
class ModFindReplace : public QObject,
                       public ModFindReplaceHookIf,
                       public ModPluginIf,
                       public ModGuiPluginIf,
                       public ModActionPluginIf
{
    Q_OBJECT

public:
    explicit ModFindReplace(QObject* parent = nullptr);
    ~ModFindReplace() override;

    /// Gives the client its hook; its widgets are registered one by one.
    void registerPlugin(ModFindReplacePluginIf* plugin);

    // ModFindReplaceHookIf
    void registerPluginWidget(ModFindReplacePluginIf* plugin, QWidget* widget, int features) override;
    void unregisterPluginWidget(QWidget* widget) override;
    QString findString() override;
    QString replaceString() override;
    bool isCaseSensitive() override;
    bool isWholeWords() override;
    bool isRegExp() override;
    bool isInSelection() override;
    void setFindResult(const QString& text, const QString& toolTip) override;

    // ModPluginIf
    void modRegisterPlugins(QList<ModPluginIf*> modules) override;
    void modInit() override;
    void modInitIntermod() override;
    void modRun() override {}
    bool modExitRequest() override { return true; }
    void modExitIntermod() override;
    void modExit() override;

    // ModGuiPluginIf
    void removeWidgetRequest(QWidget*) override {}
    void setFocus(ModGuiHookIf::eLocation_t location, ModGuiPluginIf* plugin, QWidget* widget) override;

    // ModActionPluginIf
    QList<QAction*> menuActions(ModActionHookIf::eActionClass_t actionClass) override;
    QList<QAction*> toolBarActions(ModActionHookIf::eActionClass_t actionClass) override;

private slots:
    void handleActions(nsModFindReplace::FindReplaceActions::eAction_t action);
    void setConfigChanged();
    void closeWidget();
    void findNext();
    void findPrev();
    void replace();
    void replaceAll();

private:
    struct sWidgetParameter_t
    {
        ModFindReplacePluginIf* plugin = nullptr;
        bool replaceEn = false;
        bool wholeWordsEn = false;
    };

    void connectWidget();
    void preview();
    QWidget* currentWidget() const;
    /// The client whose page is current, or null.
    ModFindReplacePluginIf* currentPlugin() const;
    void initWidget(FindReplaceWidget::eMode_t mode);
    void setActionsEn(QWidget* widget);
    void showWidget();
    void hideWidget();
    void forgetWidget(QWidget* widget);
    /// Returns the flag and clears it.
    bool takeConfigChanged();

    QHash<QWidget*, sWidgetParameter_t> m_widgets;    ///< the keys are compared, never followed
    ModFindReplacePluginIf* m_activePlugin = nullptr; ///< the client that the bar serves; it has a widget in the list
    const ModFindReplacePluginIf* m_informedPlugin = nullptr; ///< has read the parameters last; only compared
    bool m_configChanged = false;
    FindReplaceActions* m_actions = nullptr; ///< between modInit() and modExit()
    QPointer<FindReplaceWidget> m_widget;    ///< likewise; without modExit() the window deletes it
};

} // namespace nsModFindReplace
