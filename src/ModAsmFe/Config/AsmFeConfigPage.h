#pragma once

#include "AsmFeConfig.h"
#include "ModConfigPagePluginIf.h"

#include <QWidget>

class MyPageLayout;
class QComboBox;
class QLabel;

namespace nsModAsmFe {

class TargetConfigWidget;
class TargetMapperConfigWidget;

/// The settings page of the assembler; all of it belongs to the project.
class AsmFeConfigPage : public QWidget, public nsModConfig::ModConfigPagePluginIf
{
    Q_OBJECT

public:
    explicit AsmFeConfigPage(QWidget* parent = nullptr);

    /// Fills the controls.
    /// @param prjDir absolute folder of the project, that paths are shown relative to; empty without one
    void setConfig(const AsmFeConfig* config, const QString& prjDir);
    /// Takes the values of the controls. Paths are absolute. A value that no control can show stays as it is given.
    void config(AsmFeConfig* config) const;

    // ModConfigPagePluginIf
    QWidget* pageWidget() override { return this; }
    QIcon pageIcon() override;
    QString pageTitle() override;
    QString pageHelpRef() override;
    void setPrjConfigEnabled(bool enabled) override;
    bool pageIsEnabled() override { return m_prjEnabled; }
    void setFocus(bool) override {}
    void setDefaultConfig() override;
    bool checkConfig() override { return true; }

private slots:
    void updateHint();

private:
    void addBehavior();
    void addCharset();
    void addOutputs();

    MyPageLayout* m_layout;
    QComboBox* m_behaviorEqu; // in reading order, in which they are made and in which the Tab key visits them
    QComboBox* m_behaviorSet;
    QComboBox* m_behaviorIntVector;
    QComboBox* m_defaultCharset;
    QComboBox* m_behaviorCharset;
    TargetMapperConfigWidget* m_mapper;
    TargetConfigWidget* m_targets[targetKindCount]; ///< indexed by eTargetKind_t
    QLabel* m_hint = nullptr;                       ///< what is missing for any output at all
    QString m_prjDir;
    bool m_prjEnabled = true;
};

} // namespace nsModAsmFe
