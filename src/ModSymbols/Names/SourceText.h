#pragma once

#include <QString>
#include <QVector>

/// Sources as documents show them.
namespace nsModSymbols::SourceText {

/// The text of a file, lines ended by line feeds, without a byte order mark; empty if it can not be read.
QString onDisk(const QString& path);
/// Characters of a line without its comment.
int codeLength(const QString& line);
/// Where lines of one text are in another one. @param lines from 0 on. @return for each the line, or the nearest one if
/// it has gone
QVector<int> movedLines(const QString& from, const QString& to, const QVector<int>& lines);

} // namespace nsModSymbols::SourceText
