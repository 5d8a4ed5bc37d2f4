#include "SwUpdateConfigPage.h"

#include "MyPageLayout.h"
#include "SchemeIcons.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSpinBox>

namespace nsModSwUpdate {

SwUpdateConfigPage::SwUpdateConfigPage(QWidget* parent)
    : QWidget(parent)
    , m_release(new QLineEdit(this))
    , m_interval(new QComboBox(this))
    , m_timeOut(new QSpinBox(this))
{
    setObjectName(QStringLiteral("configPage"));
    m_release->setObjectName(QStringLiteral("currentRelease"));
    m_release->setReadOnly(true);
    m_interval->setObjectName(QStringLiteral("updateCheckInterval"));
    m_interval->addItem(tr("Daily"), SwUpdateConfig::intervalDaily);
    m_interval->addItem(tr("Weekly"), SwUpdateConfig::intervalWeekly);
    m_interval->addItem(tr("Monthly"), SwUpdateConfig::intervalMonthly);
    m_interval->addItem(tr("Never"), SwUpdateConfig::intervalNever);
    m_timeOut->setObjectName(QStringLiteral("timeOut"));
    m_timeOut->setRange(SwUpdateConfig::timeOutMin, SwUpdateConfig::timeOutMax);

    m_layout = new MyPageLayout(this, tr("Update check configuration"));
    m_layout->addField(tr("Current release:"), m_release, tr("The release of this program"));
    m_layout->addField(tr("Update check interval:"), m_interval,
                       tr("Days between two starts of the program that ask for a newer release"));
    m_layout->addField(tr("Update check timeout:"), m_timeOut, tr("Time that the update server has for its answer"),
                       tr("seconds"));
    setDefaultConfig();
}

void SwUpdateConfigPage::setConfig(const SwUpdateConfig* config)
{
    m_release->setText(config->applicationVersion());
    // What is no interval counts as daily, the first entry.
    m_interval->setCurrentIndex(qMax(0, m_interval->findData(config->updateCheckInterval)));
    m_timeOut->setValue(config->timeOut);
}

void SwUpdateConfigPage::config(SwUpdateConfig* config) const
{
    config->updateCheckInterval = m_interval->currentData().toInt();
    config->timeOut = m_timeOut->value();
}

void SwUpdateConfigPage::setNote(const QString& note)
{
    m_layout->setNote(note);
}

void SwUpdateConfigPage::setDefaultConfig()
{
    const SwUpdateConfig defaults;
    setConfig(&defaults);
}

QIcon SwUpdateConfigPage::pageIcon()
{
    return SchemeIcons::of(QStringLiteral(":/ModSwUpdate/img/configPage/configPageSwUpdate.png"));
}

QString SwUpdateConfigPage::pageTitle()
{
    return tr("Updates");
}

QString SwUpdateConfigPage::pageHelpRef()
{
    return QStringLiteral("pageId://configPageSwUpdate");
}

} // namespace nsModSwUpdate
