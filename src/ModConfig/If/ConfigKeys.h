#pragma once

#include <QLatin1String>

/// Keys of the user's settings that concern the configuration dialog.
namespace nsModConfig::configKeys {

/// 1: the dialog opens at the page that was shown last; 0, the default: at the first one. The page "Appearance" has it.
inline const QLatin1String opensAtLastPage("ModConfig/opensAtLastPage");
/// Title of the page that was shown last.
inline const QLatin1String lastPage("ModConfig/lastPage");

} // namespace nsModConfig::configKeys
