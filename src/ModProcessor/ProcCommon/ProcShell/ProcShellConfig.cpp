// The settings widget's life.

#include "ProcShell.h"

#include "ProcConfigWidget.h"

namespace nsProc {

nsModProcessor::ProcConfigPluginIf* ProcShell::configWidget()
{
    if (m_configWidget == nullptr) {
        m_configWidget = createConfigWidget();
        connect(m_configWidget, &QObject::destroyed, this, [this] { m_configWidget = nullptr; });
        connect(this, &QObject::destroyed, m_configWidget, &QObject::deleteLater);
        // The user can select this processor on the page, which must then show its settings.
        m_configWidget->setConfig(&m_processor.settings());
    }
    return m_configWidget;
}

void ProcShell::configWidgetSetConfig()
{
    if (m_configWidget != nullptr)
        m_configWidget->setConfig(&m_processor.settings());
}

void ProcShell::configWidgetFetchConfig()
{
    if (m_configWidget == nullptr)
        return;
    ProcCoreConfig settings = m_processor.settings();
    m_configWidget->config(&settings);
    m_processor.setStoredSettings(settings);
    // The simulator uses the new settings without another run of the assembler.
    m_configWidget->config(m_processor.runConfig());
}

void ProcShell::configWidgetClose()
{
    delete m_configWidget;
    m_configWidget = nullptr;
}

} // namespace nsProc
