#pragma once

namespace nsBatch {

/// From here on, an interrupt signal asks the run to end, instead of killing the process. A second signal kills the
/// process.
///
/// A process that was started with the signal ignored, as shells start background jobs, keeps ignoring it.
void catchStopSignal();
/// Has the signal come?
bool isStopRequested();
/// Waits until a file descriptor can be read, or the signal comes.
/// @return false if the signal has come
bool waitForInput(int fd);

} // namespace nsBatch
