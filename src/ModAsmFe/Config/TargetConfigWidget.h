#pragma once

#include "AsmFeConfig.h"

#include <QWidget>

class MyFileSelectOpen;
class MyFileSelectSave;
class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QSpinBox;

namespace nsModAsmFe {

/// What the settings of all kinds of output files have in common: on or off, the file, and a line that names what is
/// missing.
///
/// The fields of an output that is off can not be used.
class TargetConfigWidget : public QWidget
{
    Q_OBJECT

public:
    /// @param prjDir folder that paths are shown relative to
    virtual void setConfig(const TargetConfig* config, const QString& prjDir);
    /// Takes the values of the fields; what this kind does not have stays as it is.
    virtual void config(TargetConfig* config) const;
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
};

/// Settings of the mem file.
class TargetMemConfigWidget : public TargetConfigWidget
{
    Q_OBJECT

public:
    explicit TargetMemConfigWidget(QWidget* parent = nullptr);

    void setConfig(const TargetConfig* config, const QString& prjDir) override;
    void config(TargetConfig* config) const override;

private:
    QCheckBox* m_gapStuffing;
};

/// Settings of an image for a tool of a vendor: how wide its words are, and how they lie in the file.
class TargetImageConfigWidget : public TargetConfigWidget
{
    Q_OBJECT

public:
    /// @param name of the kind in texts, such as "MIF"
    /// @param filter such as "MIF files(*.mif)"
    /// @param suffix of the files, without a dot
    /// @param layouts texts of the layouts of the kind, in their order; empty if it has none
    TargetImageConfigWidget(const QString& name, const QString& filter, const QString& suffix,
                            const QStringList& layouts, QWidget* parent = nullptr);

    void setConfig(const TargetConfig* config, const QString& prjDir) override;
    void config(TargetConfig* config) const override;

private:
    QSpinBox* m_wordWidth;
    QComboBox* m_layouts = nullptr; ///< null if the kind has none
};

/// Settings of a file in a hardware description language, made from a template.
class TargetHdlConfigWidget : public TargetConfigWidget
{
    Q_OBJECT

public:
    void setConfig(const TargetConfig* config, const QString& prjDir) override;
    void config(TargetConfig* config) const override;

protected:
    /// @param language as the file dialogs call it, such as "vhdl"
    TargetHdlConfigWidget(const QString& language, const QString& filter, const QString& suffix, QWidget* parent);

    QString problem() const override;

private:
    QLineEdit* m_entityName;
    MyFileSelectOpen* m_templateFile;
    QString m_suffix;  ///< of templates, without a dot
    QString m_shipped; ///< folder of the templates that ship with the program; empty if it is missing
};

/// Settings of the VHDL file.
class TargetVhdlConfigWidget : public TargetHdlConfigWidget
{
    Q_OBJECT

public:
    explicit TargetVhdlConfigWidget(QWidget* parent = nullptr);
};

/// Settings of the Verilog file.
class TargetVerilogConfigWidget : public TargetHdlConfigWidget
{
    Q_OBJECT

public:
    explicit TargetVerilogConfigWidget(QWidget* parent = nullptr);
};

} // namespace nsModAsmFe
