#pragma once

namespace nsNalvoAsm {

/// Makes the process safe to run in any surroundings: before anything else in main().
///
/// - A standard stream that is closed stays unusable, instead of being taken by the first file that is opened.
/// - A reader of the messages that goes away early does not end the run halfway through its output files.
void setupProcess();

/// Is SOURCE_DATE_EPOCH unset, or a moment that a time stamp can show? If not, says so on standard error.
bool checkSourceDateEpoch();

} // namespace nsNalvoAsm
