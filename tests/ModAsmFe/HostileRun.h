#pragma once

#include "AsmFixture.h"

/// What no input may do, whatever it holds: end a run without a message, leave a group open, or give invalid words.
/// @return what is wrong, or an empty text
QString brokenRule(const AsmFixture& f);
/// Runs the sources on a fixture of their own. @return what is wrong, or an empty text
QString hostileRun(const QList<QByteArray>& sources);
/// The same, for sources that must be refused.
QString refusedRun(const QList<QByteArray>& sources);
