#pragma once

#include "AsmFeConfig.h"

#include <QWidget>

class MyFileSelectOpen;
class MyFileSelectSave;
class QCheckBox;
class QGridLayout;
class QLabel;
class QLineEdit;

namespace nsModAsmFe {

/// What the settings of all kinds of output files have in common: on or off, the file, and a line that names what is
/// missing.
///
/// The fields of an output that is off can not be used.
class TargetConfigWidget : public QWidget
{
    Q_OBJECT

public:
    bool isEnabledOutput() const;
    /// Makes room for labels of this width, in pixels, so that all fields of the page stand in one column.
    void setLabelWidth(int width);

signals:
    /// The user has changed something.
    void changed();

protected:
    explicit TargetConfigWidget(QWidget* parent);

    void addField(const QString& title, QWidget* field, const QString& toolTip);
    void addEnable(const QString& toolTip);
    /// @param title of the file dialog
    /// @param filter such as "Hex files(*.hex)"
    void addOutputFile(const QString& title, const QString& filter, const QString& suffix);
    /// The line of what is missing, as the last one.
    void addHint();

    void setTarget(const TargetConfig& config, const QString& prjDir);
    void target(TargetConfig* config) const;
    /// What keeps the enabled output from being written; empty if nothing does.
    virtual QString problem() const;

protected slots:
    void updateState();

private:
    QGridLayout* m_layout;
    QCheckBox* m_enable = nullptr;
    MyFileSelectSave* m_outputFile = nullptr;
    QLabel* m_hint = nullptr;
};

/// Settings of the hex file.
class TargetHexConfigWidget : public TargetConfigWidget
{
    Q_OBJECT

public:
    explicit TargetHexConfigWidget(QWidget* parent = nullptr);

    /// @param prjDir folder that paths are shown relative to
    void setConfig(const TargetHexConfig* config, const QString& prjDir) { setTarget(*config, prjDir); }
    void config(TargetHexConfig* config) const { target(config); }
};

/// Settings of the mem file.
class TargetMemConfigWidget : public TargetConfigWidget
{
    Q_OBJECT

public:
    explicit TargetMemConfigWidget(QWidget* parent = nullptr);

    /// @param prjDir folder that paths are shown relative to
    void setConfig(const TargetMemConfig* config, const QString& prjDir);
    void config(TargetMemConfig* config) const;

private:
    QCheckBox* m_gapStuffing;
};

/// Settings of a file in a hardware description language, made from a template.
class TargetHdlConfigWidget : public TargetConfigWidget
{
    Q_OBJECT

protected:
    /// @param language as the file dialogs call it, such as "vhdl"
    TargetHdlConfigWidget(const QString& language, const QString& filter, const QString& suffix, QWidget* parent);

    void setHdl(const TargetVhdlConfig& config, const QString& prjDir);
    void hdl(TargetVhdlConfig* config) const;
    QString problem() const override;

private:
    QLineEdit* m_entityName;
    MyFileSelectOpen* m_templateFile;
};

/// Settings of the VHDL file.
class TargetVhdlConfigWidget : public TargetHdlConfigWidget
{
    Q_OBJECT

public:
    explicit TargetVhdlConfigWidget(QWidget* parent = nullptr);

    /// @param prjDir folder that paths are shown relative to
    void setConfig(const TargetVhdlConfig* config, const QString& prjDir) { setHdl(*config, prjDir); }
    void config(TargetVhdlConfig* config) const { hdl(config); }
};

/// Settings of the Verilog file.
class TargetVerilogConfigWidget : public TargetHdlConfigWidget
{
    Q_OBJECT

public:
    explicit TargetVerilogConfigWidget(QWidget* parent = nullptr);

    /// @param prjDir folder that paths are shown relative to
    void setConfig(const TargetVerilogConfig* config, const QString& prjDir) { setHdl(*config, prjDir); }
    void config(TargetVerilogConfig* config) const { hdl(config); }
};

} // namespace nsModAsmFe
