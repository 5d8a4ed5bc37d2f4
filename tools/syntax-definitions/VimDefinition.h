#pragma once

#include <QByteArray>
#include <QString>

namespace nsSyntax {

class Grammar;

/// An expression of the grammar as Vim writes it.
QString vimExpression(const QString& expression);

// The files of the runtime folder of Vim.

QByteArray vimSyntax(const Grammar& grammar);
/// Which files are of this language.
QByteArray vimDetection();
/// Comments, and how a source is formatted.
QByteArray vimPlugin();
/// How a project is assembled, and what its messages look like.
QByteArray vimCompiler();

} // namespace nsSyntax
