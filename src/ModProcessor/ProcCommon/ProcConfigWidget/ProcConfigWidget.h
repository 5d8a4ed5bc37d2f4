#pragma once

#include "ProcConfigPluginIf.h"
#include "ProcCoreConfig.h"

#include <QVector>
#include <QWidget>

class QCheckBox;
class QLabel;
class QGridLayout;
class QSpinBox;
class QTabWidget;

namespace nsProc {

class ProcAddressBox;
struct ProcTable;
struct sProcSetting_t;

/// The settings widget that all processors share: tabs for the core and its instruction memory, filled from the
/// processor's table.
///
/// It has no copy of the settings: the values are only in its controls.
class ProcConfigWidget : public QWidget, public nsModProcessor::ProcConfigPluginIf
{
    Q_OBJECT

public:
    /// Fills the controls.
    void setConfig(const ProcCoreConfig* config);
    /// Takes the values of the controls; does not change settings without a control.
    void config(ProcCoreConfig* config) const;

    // ProcConfigPluginIf
    void initWidget() override;
    QWidget* widget() override { return this; }
    QString widgetHelpRef() override;
    void setDefaultConfig() override;

protected:
    /// @param table must live as long as the widget
    ProcConfigWidget(const ProcTable& table, QWidget* parent);

private slots:
    void tabChanged(int index);

private:
    QGridLayout* addPage(const QString& title);
    void addField(QGridLayout* grid, int row, const sProcSetting_t& field);
    QLabel* makeHexText(ProcAddressBox* address);
    QWidget* createControl(const sProcSetting_t& field);
    void addSimPage();
    void addNumber(QGridLayout* grid, const char* name, const QString& text, const QString& toolTip,
                   int ProcCoreConfig::*value, int minimum, int maximum);
    QCheckBox* addOption(QGridLayout* grid, const char* name, const QString& text, const QString& toolTip);

    struct sField_t
    {
        const sProcSetting_t* setting;
        QWidget* control;
    };

    const ProcTable& m_table;
    QVector<sField_t> m_fields; ///< in the order of the rows
    /// An option of the simulation: a bit of a member.
    struct sOption_t
    {
        QCheckBox* box;
        int ProcCoreConfig::*value;
        int bit;
    };

    QTabWidget* m_tabs = nullptr;
    QVector<sOption_t> m_options;
    /// A number that the simulation needs.
    struct sNumber_t
    {
        QSpinBox* box;
        int ProcCoreConfig::*value;
    };
    QVector<sNumber_t> m_numbers;
};

} // namespace nsProc
