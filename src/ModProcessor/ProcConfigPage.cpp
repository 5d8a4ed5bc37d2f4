#include "ProcConfigPage.h"

#include "ProcList.h"
#include "ProcPluginIf.h"

#include "ModConfigPageHookIf.h"
#include "MyPageLayout.h"
#include "SchemeIcons.h"

#include <QComboBox>
#include <QLabel>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace nsModProcessor {

ProcConfigPage::ProcConfigPage(ProcList* list, QWidget* parent)
    : QWidget(parent)
    , m_list(list)
    , m_layout(new MyPageLayout(this, tr("Processor settings")))
    , m_processors(new QComboBox(this))
    , m_configWidgets(new QStackedWidget(this))
{
    setObjectName(QStringLiteral("configPage"));
    m_processors->setObjectName(QStringLiteral("processor"));
    m_configWidgets->setObjectName(QStringLiteral("processorConfig"));
    m_layout->addSection(tr("Processor"));
    m_layout->addField(tr("Processor:"), m_processors,
                       tr("Processor that the programs of the project are written for"));
    m_layout->addSection(tr("Processor configuration"));
    m_layout->addFill(m_configWidgets);

    m_processors->addItem(tr("Unset"), QString());
    m_configWidgets->addWidget(createUnsetWidget());
    for (ProcPluginIf* processor : m_list->processors()) {
        ProcConfigPluginIf* plugin = processor->configWidget();
        plugin->procConfigHook = this;
        plugin->initWidget();
        m_configWidgets->addWidget(plugin->widget());
        m_processors->addItem(processor->processorName(), processor->processorName());
    }
    m_processors->setCurrentIndex(0);
    m_configWidgets->setCurrentIndex(0);
    connect(m_processors, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &ProcConfigPage::selectProcessorConfigWidget);
}

ProcConfigPage::~ProcConfigPage()
{
    for (ProcPluginIf* processor : m_list->processors())
        processor->configWidgetClose();
}

QWidget* ProcConfigPage::createUnsetWidget()
{
    auto* widget = new QWidget(m_configWidgets);
    auto* hint =
        new QLabel(tr("No processor is chosen. Choose one above: its settings appear here, and the project's sources "
                      "can be assembled."),
                   widget);
    hint->setObjectName(QStringLiteral("pageHint"));
    hint->setWordWrap(true);
    auto* layout = new QVBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(hint);
    layout->addStretch(1);
    return widget;
}

void ProcConfigPage::selectProcessorConfigWidget(int index)
{
    m_configWidgets->setCurrentIndex(index);
    m_shown = index <= 0 ? nullptr : m_list->interface(m_processors->currentText());
    setWidgetHelpChanged();
}

void ProcConfigPage::setProcessor(const QString& name)
{
    const int index = m_processors->findData(name);
    if (index >= 0)
        m_processors->setCurrentIndex(index);
}

QString ProcConfigPage::processor() const
{
    return m_processors->currentText();
}

void ProcConfigPage::setConfig(const ProcConfig* config)
{
    setProcessor(config->processor);
    if (m_shown != nullptr)
        m_shown->configWidgetSetConfig();
}

ProcConfig ProcConfigPage::config() const
{
    ProcConfig config;
    config.processor = m_processors->currentData().toString();
    return config;
}

void ProcConfigPage::setWidgetHelpChanged()
{
    if (modConfigPageHook != nullptr)
        modConfigPageHook->showDialogPageHelp(this);
}

QIcon ProcConfigPage::pageIcon()
{
    return SchemeIcons::of(QStringLiteral(":/ModProcessor/img/configPage/configPageProcessor.png"));
}

QString ProcConfigPage::pageTitle()
{
    return tr("Processor");
}

QString ProcConfigPage::pageHelpRef()
{
    return m_shown != nullptr ? m_shown->configWidget()->widgetHelpRef()
                              : QStringLiteral("pageId://configPageProcessor");
}

void ProcConfigPage::setPrjConfigEnabled(bool enabled)
{
    setEnabled(enabled);
    m_layout->setPrjConfigEnabled(enabled);
}

bool ProcConfigPage::pageIsEnabled()
{
    return isEnabled();
}

void ProcConfigPage::setDefaultConfig()
{
    if (ProcPluginIf* processor = m_list->interface(m_processors->currentText()))
        processor->configWidget()->setDefaultConfig();
}

} // namespace nsModProcessor
