#pragma once

#include "ForeignAssembler.h"

#include <QMap>
#include <QStringList>

/// How a program ended that was started in a shell.
struct ToolRun
{
    int status = -1; ///< exit status; -1 if it did not end by itself
    QString out;
    QString err;
};

/// Starts a program and waits for its end. Settings of whoever runs the tests are neither read nor written.
ToolRun runTool(const QString& program, const QStringList& arguments, const QString& folder);

/// What `nalvo-import -d` takes for the dialect.
QString dialectOption(foreign::Dialect dialect);

/// The words that `nalvo-asm` makes of the only project in the folder, by address.
/// @param problem takes what the assembler says if it fails, and else stays empty
QMap<int, quint32> assembledProject(const QString& folder, QString* problem);

/// Compares as memories: an address without a word holds zero.
/// @return an empty text if they are equal, else the first differences
QString differences(const QMap<int, quint32>& expected, const QMap<int, quint32>& actual);
