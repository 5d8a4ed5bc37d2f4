#include "PrjConfigPage.h"

#include "MyPageLayout.h"
#include "SchemeIcons.h"

#include <QLineEdit>
#include <QPlainTextEdit>

namespace nsModPrj {

namespace {

const int commentLines = 6; ///< text lines that the comment shows at least

} // namespace

PrjConfigPage::PrjConfigPage(QWidget* parent)
    : QWidget(parent)
    , m_layout(new MyPageLayout(this, tr("Project information")))
    , m_title(new QLineEdit)
    , m_version(new QLineEdit)
    , m_comment(new QPlainTextEdit)
{
    setObjectName(QStringLiteral("prjConfigPage"));
    m_title->setObjectName(QStringLiteral("prjTitle"));
    m_version->setObjectName(QStringLiteral("prjVersion"));
    m_comment->setObjectName(QStringLiteral("prjComment"));
    m_version->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed); // short by nature
    // The comment needs no tabs, so the Tab key moves to the next field.
    m_comment->setTabChangesFocus(true);
    m_comment->setMinimumHeight(commentLines * m_comment->fontMetrics().lineSpacing());

    m_layout->addField(tr("Title:"), m_title, tr("Name of the project, shown in the title of the window"));
    m_layout->addField(tr("Version:"), m_version, tr("Version of the project, such as 0.1"));
    m_layout->addField(tr("Comment:"), m_comment, tr("What the project is about"));
    setConfig(PrjConfig());
    setPrjConfigEnabled(false);
}

void PrjConfigPage::setConfig(const PrjConfig& config)
{
    m_title->setText(config.cfgTitle);
    m_version->setText(config.cfgVersion);
    m_comment->setPlainText(config.cfgComment);
}

PrjConfig PrjConfigPage::config() const
{
    PrjConfig config;
    config.cfgTitle = m_title->text();
    config.cfgVersion = m_version->text();
    config.cfgComment = m_comment->toPlainText();
    return config;
}

QWidget* PrjConfigPage::pageWidget()
{
    return this;
}

QIcon PrjConfigPage::pageIcon()
{
    return SchemeIcons::of(QStringLiteral(":/ModPrj/img/configPage/configPageProject.png"));
}

QString PrjConfigPage::pageTitle()
{
    return tr("Info");
}

QString PrjConfigPage::pageHelpRef()
{
    return QStringLiteral("pageId://configPagePrjInfo");
}

void PrjConfigPage::setPrjConfigEnabled(bool enabled)
{
    m_enabled = enabled;
    m_layout->setPrjConfigEnabled(enabled);
}

bool PrjConfigPage::pageIsEnabled()
{
    return m_enabled;
}

void PrjConfigPage::setFocus(bool) {}

void PrjConfigPage::setDefaultConfig()
{
    setConfig(PrjConfig());
}

bool PrjConfigPage::checkConfig()
{
    return true;
}

} // namespace nsModPrj
