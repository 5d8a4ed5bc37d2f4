#pragma once

#include "ModConfigPagePluginIf.h"
#include "ProcConfig.h"
#include "ProcConfigPluginIf.h"

#include <QWidget>

class MyPageLayout;
class QComboBox;
class QStackedWidget;

namespace nsModProcessor {

class ProcList;
class ProcPluginIf;

/// The settings page on which the project's processor is chosen and set up.
///
/// It contains the settings widgets of all processors and shows one of them at a time. They exist as long as the page.
class ProcConfigPage : public QWidget, public ProcConfigHookIf, public nsModConfig::ModConfigPagePluginIf
{
    Q_OBJECT

public:
    /// @param list all processors; not owned, lives longer than the page
    explicit ProcConfigPage(ProcList* list, QWidget* parent = nullptr);
    ~ProcConfigPage() override;

    /// Shows the processor with this display name; an unknown name changes nothing.
    void setProcessor(const QString& name);
    /// What the combo box shows.
    QString processor() const;
    /// Shows the choice, and puts the chosen processor's settings into its widget.
    void setConfig(const ProcConfig* config);
    /// The choice; an empty name if there is none.
    ProcConfig config() const;

    // ProcConfigHookIf
    void setWidgetHelpChanged() override;

    // ModConfigPagePluginIf
    QWidget* pageWidget() override { return this; }
    QIcon pageIcon() override;
    QString pageTitle() override;
    QString pageHelpRef() override;
    void setPrjConfigEnabled(bool enabled) override;
    bool pageIsEnabled() override;
    void setFocus(bool) override {}
    void setDefaultConfig() override;
    bool checkConfig() override { return true; }

private slots:
    void selectProcessorConfigWidget(int index);

private:
    QWidget* createUnsetWidget();

    ProcList* m_list;
    ProcPluginIf* m_shown = nullptr; ///< the processor that is shown; null for none; not owned
    MyPageLayout* m_layout = nullptr;
    QComboBox* m_processors = nullptr;
    QStackedWidget* m_configWidgets = nullptr; ///< index as in the combo box
};

} // namespace nsModProcessor
