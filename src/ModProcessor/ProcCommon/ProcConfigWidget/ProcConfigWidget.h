#pragma once

#include "ProcConfigField.h"
#include "ProcConfigPluginIf.h"

#include <QHash>
#include <QVector>
#include <QWidget>

class QGridLayout;
class QTabWidget;

namespace nsProc {

/// The settings widget that all processors share: tabs for the core and its instruction memory, filled from a table.
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
    QString widgetHelpRef() override { return m_helpRef; }
    void setDefaultConfig() override;

protected:
    /// @param fields in the order of the rows
    /// @param defaults settings of a new processor
    /// @param helpRef help page of the processor's settings
    ProcConfigWidget(const QVector<sProcConfigField>& fields, const ProcCoreConfig& defaults, const QString& helpRef,
                     QWidget* parent);

private slots:
    void tabChanged(int index);

private:
    QGridLayout* addPage(const QString& title);
    void addField(QGridLayout* grid, int row, const sProcConfigField& field);
    QWidget* createControl(const sProcConfigField& field);

    QVector<sProcConfigField> m_fields;
    QVector<QWidget*> m_controls; ///< one for each field
    ProcCoreConfig m_defaults;
    QString m_helpRef;
    QTabWidget* m_tabs = nullptr;
};

} // namespace nsProc
