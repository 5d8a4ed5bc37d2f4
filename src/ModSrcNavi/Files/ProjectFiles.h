#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

namespace nsModSrcNavi {

/// The files of the open project with the state of each, as a value. All paths are absolute.
struct ProjectFiles
{
    /// A line of the list of sources, which can hold a file more than once.
    struct sSource_t
    {
        QString file;
        int nth = 0; ///< of the lines of this file, from 0 on
    };

    /// State of one file; several can hold.
    struct sState_t
    {
        bool isOpen = false;
        bool isChanged = false; ///< the open document differs from its file
        bool isMissing = false;
        int errors = 0; ///< of the last run
    };

    QStringList sources; ///< in the order in which the assembler reads them
    QStringList templates;
    QStringList outputs;
    QStringList open;    ///< files with a document
    QStringList changed; ///< files whose document has changes
    QMap<QString, int> errors;

    static sSource_t sourceAt(const QStringList& sources, int row);
    /// @return row of the source; -1: the list does not hold it
    static int rowOf(const QStringList& sources, const sSource_t& source);

    sState_t stateOf(const QString& file) const;
    /// The state in words, as "open, changed"; empty if there is nothing to say.
    static QString textOf(const sState_t& state, bool isOutput);
};

} // namespace nsModSrcNavi
