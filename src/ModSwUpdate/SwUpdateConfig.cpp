#include "SwUpdateConfig.h"

#include "CfgItems.h"
#include "ModCfgAppHookIf.h"
#include "Release.h"

#include <limits>

namespace nsModSwUpdate {

namespace {

const QString keyLastUpdateCheck = QStringLiteral("ModSwUpdate/lastUpdateCheck");
const QString keyHadStart = QStringLiteral("ModSwUpdate/hadStart");

template <class Items, class Config>
void allItems(Items items, Config& config)
{
    items.item(QStringLiteral("ModSwUpdate/updateCheckInterval"), config.updateCheckInterval,
               std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    items.item(QStringLiteral("ModSwUpdate/timeOut"), config.timeOut, SwUpdateConfig::timeOutMin,
               SwUpdateConfig::timeOutMax);
}

} // namespace

SwUpdateConfig::SwUpdateConfig()
{
    const Release release = Release::own();
    releaseYear = release.year;
    releaseMonth = release.month;
    releaseNumber = release.number;
    releaseState = release.state;
}

void SwUpdateConfig::rdSwUpdateConfig(ModCfgAppHookIf* cfg)
{
    allItems(CfgReader<ModCfgAppHookIf>(cfg), *this);
    lastUpdateCheck = cfg->value(keyLastUpdateCheck, lastUpdateCheck);
    hadStart = cfg->value(keyHadStart, int(hadStart)) != 0;
}

void SwUpdateConfig::wrSwUpdateConfig(ModCfgAppHookIf* cfg) const
{
    allItems(CfgWriter<ModCfgAppHookIf>(cfg), *this);
    cfg->setValue(keyLastUpdateCheck, lastUpdateCheck);
    cfg->setValue(keyHadStart, 1);
}

QString SwUpdateConfig::applicationVersion() const
{
    return Release{releaseYear, releaseMonth, releaseNumber, releaseState}.text();
}

QString SwUpdateConfig::releaseText() const
{
    return Release{releaseYear, releaseMonth, releaseNumber, releaseState}.textWithState();
}

bool SwUpdateConfig::isIntervalOver(const QDate& today) const
{
    const qint64 days = lastUpdateCheck.daysTo(today);
    switch (updateCheckInterval) {
    case intervalNever:
        return false;
    case intervalWeekly:
        return days >= 7;
    case intervalMonthly:
        return days >= lastUpdateCheck.daysInMonth();
    default:
        return days >= 1;
    }
}

bool SwUpdateConfig::isCheckDue(const QDate& today) const
{
    if (lastUpdateCheck.isValid())
        return isIntervalOver(today);
    return updateCheckInterval != intervalNever && hadStart;
}

} // namespace nsModSwUpdate
