#pragma once

namespace nsBatch {

/// From here on, an interrupt signal asks the run to end, instead of killing the process. A second signal kills the
/// process.
///
/// @param andTermination the signals that ask a process to end, or tell that its terminal is gone, do the same
///
/// A process that was started with the signal ignored, as shells start background jobs, keeps ignoring it.
void catchStopSignal(bool andTermination = false);
/// Has the signal come?
bool isStopRequested();
/// Waits until a file descriptor can be read, or the signal comes.
/// @return false if the signal has come
bool waitForInput(int fd);

} // namespace nsBatch
