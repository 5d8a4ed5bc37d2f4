#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

class QCommandLineParser;

namespace nsBatch {

/// The files that a command line names for the inputs of the processor. "-" is standard input.
struct SimInputFiles
{
    QString reads;            ///< values for all reads; empty: none
    QMap<int, QString> ports; ///< values for the reads of a port
    QString stimulus;         ///< changes of inputs by the clock; empty: none

    /// Reads --reads, --port and --stimulus.
    /// @return false after a reported error
    bool readOptions(const QCommandLineParser& parser);
    /// All of them, without standard input.
    QStringList names() const;
};

} // namespace nsBatch
