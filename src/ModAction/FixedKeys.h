#pragma once

#include "Shortcuts.h"

namespace nsModAction {

/// The keys that belong to a single list, field or view, as Delete does in the list of files. They are the same for
/// everybody; a command that were given one of them would take it away from there.
class FixedKeys
{
public:
    /// As rows for the page of all keys; their menu is the place.
    static QVector<Shortcuts::sCommand_t> rows();
};

} // namespace nsModAction
