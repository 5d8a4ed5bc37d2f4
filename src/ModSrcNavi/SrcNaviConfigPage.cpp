#include "SrcNaviConfigPage.h"

#include "Colors.h"
#include "MyColorSelector.h"
#include "MyFontTable.h"
#include "MyPageLayout.h"
#include "SchemeIcons.h"

#include <QComboBox>

namespace nsModSrcNavi {

SrcNaviConfigPage::SrcNaviConfigPage(QWidget* parent)
    : QWidget(parent)
    , m_location(new QComboBox(this))
    , m_sortMode(new QComboBox(this))
    , m_bookmarkSymbolColor(new MyColorSelector(this))
    , m_fontTable(new MyFontTable(this))
{
    setObjectName(QStringLiteral("configPage"));
    m_location->setObjectName(QStringLiteral("naviWidgetLocation"));
    m_location->addItem(tr("Disabled"), SrcNaviConfig::locationDisabled);
    m_location->addItem(tr("Left side"), SrcNaviConfig::locationLeft);
    m_location->addItem(tr("Right side"), SrcNaviConfig::locationRight);
    m_sortMode->setObjectName(QStringLiteral("tagListSortMode"));
    m_sortMode->addItem(tr("Document structure"), SrcNaviConfig::sortDocument);
    m_sortMode->addItem(tr("Plain Ascent"), SrcNaviConfig::sortPlainAscent);
    m_sortMode->addItem(tr("Plain Descent"), SrcNaviConfig::sortPlainDescent);
    // Indexed by eFontContext_t.
    m_fontTable->setContexts(
        {tr("Label"), tr("Hardware title"), tr("Contant title"), tr("Separator title"), tr("Group title")});

    auto* layout = new MyPageLayout(this, tr("Code Navigator Configuration"));
    layout->addSection(tr("Widget behavior"));
    layout->addField(tr("Code navigator widget location:"), m_location,
                     tr("Side of the window that the navigator stands at"));
    layout->addField(tr("Startup tag list sort mode:"), m_sortMode, tr("Order of the navigator's entries"));
    layout->addSection(tr("Navigator tree"));
    layout->addField(tr("Bookmark symbol color:"), m_bookmarkSymbolColor);
    layout->addField(tr("Fonts:"), m_fontTable);
    setDefaultConfig();
    connect(Colors::instance(), &Colors::changed, this, [this] {
        SrcNaviConfig shown;
        config(&shown);
        setConfig(&shown);
    });
}

void SrcNaviConfigPage::setConfig(const SrcNaviConfig* config)
{
    m_location->setCurrentIndex(m_location->findData(config->naviWidgetLocation));
    m_sortMode->setCurrentIndex(m_sortMode->findData(config->tagListSortMode));
    m_bookmarkSymbolColor->setColor(Colors::shown(Colors::eMarkBookmark, config->bookmarkSymbolColor));
    for (int i = 0; i < SrcNaviConfig::fontContextCount; ++i)
        m_fontTable->setFormat(
            i, Colors::shown(SrcNaviConfig::colorOf(SrcNaviConfig::eFontContext_t(i)), config->fontFormats[i]));
}

void SrcNaviConfigPage::config(SrcNaviConfig* config) const
{
    if (m_location->currentIndex() >= 0)
        config->naviWidgetLocation = m_location->currentData().toInt();
    if (m_sortMode->currentIndex() >= 0)
        config->tagListSortMode = m_sortMode->currentData().toInt();
    config->bookmarkSymbolColor = Colors::stored(Colors::eMarkBookmark, m_bookmarkSymbolColor->color());
    for (int i = 0; i < SrcNaviConfig::fontContextCount; ++i)
        config->fontFormats[i] =
            Colors::stored(SrcNaviConfig::colorOf(SrcNaviConfig::eFontContext_t(i)), m_fontTable->format(i));
}

void SrcNaviConfigPage::setDefaultConfig()
{
    const SrcNaviConfig defaults;
    setConfig(&defaults);
}

QIcon SrcNaviConfigPage::pageIcon()
{
    return SchemeIcons::of(QStringLiteral(":/ModSrcNavi/img/configPage/configPageNavi.png"));
}

QString SrcNaviConfigPage::pageTitle()
{
    return tr("Source Navi");
}

QString SrcNaviConfigPage::pageHelpRef()
{
    return QStringLiteral("pageId://configPageSourceNavi");
}

} // namespace nsModSrcNavi
