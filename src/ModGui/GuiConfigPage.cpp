#include "GuiConfigPage.h"

#include "MyPageLayout.h"
#include "SchemeIcons.h"

#include <QCheckBox>
#include <QComboBox>

namespace nsModGui {

GuiConfigPage::GuiConfigPage(QWidget* parent)
    : QWidget(parent)
    , m_colors(new QComboBox(this))
    , m_lastPage(new QCheckBox(tr("Open at the page that was shown last"), this))
{
    setObjectName(QStringLiteral("configPage"));
    m_colors->setObjectName(QStringLiteral("colorScheme"));
    m_colors->addItem(tr("As the system"), ColorScheme::eAsSystem);
    m_colors->addItem(tr("Light"), ColorScheme::eAlwaysLight);
    m_colors->addItem(tr("Dark"), ColorScheme::eAlwaysDark);

    auto* layout = new MyPageLayout(this, tr("Appearance"));
    layout->addSection(tr("Colours"));
    layout->addField(tr("Scheme:"), m_colors, tr("Light or dark colours for the whole program"));
    layout->addHint(tr("Colours of the editor and the navigator that you have chosen yourself stay as they are."));
    layout->addSection(tr("Configuration"));
    m_lastPage->setObjectName(QStringLiteral("opensAtLastPage"));
    m_lastPage->setToolTip(tr("This configuration opens where it was closed, and not at its first page"));
    layout->addRow(m_lastPage);
    setDefaultConfig();
}

void GuiConfigPage::setOpensAtLastPage(bool opens)
{
    m_lastPage->setChecked(opens);
}

bool GuiConfigPage::opensAtLastPage() const
{
    return m_lastPage->isChecked();
}

void GuiConfigPage::setColors(ColorScheme::eChoice_t choice)
{
    m_colors->setCurrentIndex(qMax(0, m_colors->findData(choice)));
}

ColorScheme::eChoice_t GuiConfigPage::colors() const
{
    return static_cast<ColorScheme::eChoice_t>(m_colors->currentData().toInt());
}

QIcon GuiConfigPage::pageIcon()
{
    return SchemeIcons::of(QStringLiteral(":/ModGui/img/configPage/configPageAppearance.png"));
}

QString GuiConfigPage::pageTitle()
{
    return tr("Appearance");
}

QString GuiConfigPage::pageHelpRef()
{
    return QStringLiteral("pageId://configPageAppearance");
}

void GuiConfigPage::setDefaultConfig()
{
    setColors(ColorScheme::eAsSystem);
    setOpensAtLastPage(false);
}

} // namespace nsModGui
