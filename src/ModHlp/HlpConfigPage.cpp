#include "HlpConfigPage.h"

#include "MyPageLayout.h"
#include "SchemeIcons.h"

#include <QCheckBox>
#include <QComboBox>

namespace nsModHlp {

HlpConfigPage::HlpConfigPage(QWidget* parent)
    : QWidget(parent)
    , m_gettingStarted(new QCheckBox(this))
    , m_onlyOnePage(new QCheckBox(this))
    , m_location(new QComboBox(this))
{
    setObjectName(QStringLiteral("configPage"));
    m_gettingStarted->setObjectName(QStringLiteral("showGettingStarted"));
    m_onlyOnePage->setObjectName(QStringLiteral("showOnlyOneHelpPage"));
    m_location->setObjectName(QStringLiteral("hlpIndexLocation"));
    m_location->addItem(tr("Disabled"), HlpConfig::indexDisabled);
    m_location->addItem(tr("Left side"), HlpConfig::indexLeft);
    m_location->addItem(tr("Right side"), HlpConfig::indexRight);

    auto* layout = new MyPageLayout(this, tr("Help configuration"));
    layout->addSection(tr("Pages"));
    layout->addField(tr("Show getting started information:"), m_gettingStarted,
                     tr("Opens the first help page at each start"));
    layout->addField(tr("Show only one help page:"), m_onlyOnePage,
                     tr("A further page takes the place of the current one; otherwise it gets a tab of its own"));
    layout->addSection(tr("Content and index"));
    layout->addField(tr("Help content/index widget location:"), m_location,
                     tr("Side of the window that contents, index and search stand at"));
    setDefaultConfig();
}

void HlpConfigPage::setConfig(const HlpConfig* config)
{
    m_gettingStarted->setChecked(config->showGettingStarted);
    m_onlyOnePage->setChecked(config->showOnlyOneHelpPage);
    m_location->setCurrentIndex(m_location->findData(config->hlpIndexSideRight));
}

void HlpConfigPage::config(HlpConfig* config) const
{
    config->showGettingStarted = m_gettingStarted->isChecked();
    config->showOnlyOneHelpPage = m_onlyOnePage->isChecked();
    if (m_location->currentIndex() >= 0)
        config->hlpIndexSideRight = m_location->currentData().toInt();
}

void HlpConfigPage::setDefaultConfig()
{
    const HlpConfig defaults;
    setConfig(&defaults);
}

QIcon HlpConfigPage::pageIcon()
{
    return SchemeIcons::of(QStringLiteral(":/ModHlp/img/configPage/configPageHelp.png"));
}

QString HlpConfigPage::pageTitle()
{
    return tr("Help");
}

QString HlpConfigPage::pageHelpRef()
{
    return QStringLiteral("pageId://configPageHelp");
}

} // namespace nsModHlp
