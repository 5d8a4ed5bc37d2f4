#pragma once

#include <QDate>
#include <QString>

class ModCfgAppHookIf;

namespace nsModSwUpdate {

/// The release of this program, and how often it is compared with the newest one.
class SwUpdateConfig
{
public:
    enum eInterval_t { intervalNever = 0, intervalDaily = 1, intervalWeekly = 2, intervalMonthly = 3 };

    static constexpr int timeOutMin = 5; ///< seconds, as all times here
    static constexpr int timeOutMax = 60;

    SwUpdateConfig();

    /// Reads all keys from the application's settings. A missing key leaves the field as it is; a time-out outside of
    /// its range becomes the nearest one inside.
    void rdSwUpdateConfig(ModCfgAppHookIf* cfg);
    /// Notes this start, too.
    void wrSwUpdateConfig(ModCfgAppHookIf* cfg) const;

    /// Year, month and number.
    QString applicationVersion() const;
    /// The same with a suffix for the state.
    QString releaseText() const;
    /// @return the interval has passed since the last check, which must be valid. A value that is no interval counts as
    /// daily.
    bool isIntervalOver(const QDate& today) const;
    /// @return a start of the program must check now: never the first start of a user, which has no last check
    bool isCheckDue(const QDate& today) const;

    int releaseYear;
    int releaseMonth;
    int releaseNumber;
    int releaseState;                        ///< 0 alpha, 1 beta, any other: released
    int updateCheckInterval = intervalDaily; ///< a value of eInterval_t
    int timeOut = 20;
    QDate lastUpdateCheck; ///< invalid: never
    bool hadStart = false; ///< an earlier start of the program has ended
};

} // namespace nsModSwUpdate
