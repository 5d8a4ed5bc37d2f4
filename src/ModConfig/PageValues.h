#pragma once

#include <QStringList>

class QWidget;

namespace nsModConfig {

/// What the controls of a settings page hold, whatever the page is, so that two moments can be compared.
class PageValues
{
public:
    /// The values of all controls in @p page, in the order in which the controls were made. A control whose property
    /// "isSetting" is false, such as a search field, holds none.
    static QStringList of(const QWidget* page);
};

} // namespace nsModConfig
