#pragma once

namespace nsModSyscall {

/// Events on which external programs run.
enum eEvent_t : int { eEventButton1 = 0, eEventButton2 = 1, eEventSave = 2 };

} // namespace nsModSyscall
