#pragma once

#include <QString>
#include <QtGlobal>

#include <limits>
#include <utility>
#include <vector>

class QCommandLineParser;

namespace nsBatch {

/// An option without an upper limit.
constexpr qint64 unbounded = std::numeric_limits<qint64>::max();

/// A number, decimal or with 0x hexadecimal.
/// @return false, with nothing changed, if the text is anything else or the number is out of range
bool toNumber(const QString& text, qint64 minimum, qint64 maximum, qint64* value);

/// Reads the value of an option, if that is given.
/// @return false after a reported error
bool readNumber(const QCommandLineParser& parser, const QString& name, qint64 minimum, qint64 maximum, qint64* value);

/// Reads the numbers of instructions of --interrupt-at, ascending and each once.
/// @return false after a reported error
bool readInterruptNumbers(const QCommandLineParser& parser, std::vector<qint64>* numbers);

/// Reads the requests of --interrupt-at-clock: clocks from and length.
/// @return false after a reported error
bool readInterruptClocks(const QCommandLineParser& parser, std::vector<std::pair<qint64, qint64>>* requests);

/// Reads one value of --port, ADDR=FILE, into port and file.
/// @return false after a reported error
bool readPortFile(const QString& text, int* port, QString* file);

} // namespace nsBatch
