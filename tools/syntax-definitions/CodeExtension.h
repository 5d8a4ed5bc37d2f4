#pragma once

#include <QByteArray>
#include <QString>

namespace nsSyntax {

class Grammar;

// The files of the extension for VS Code. Other editors read its TextMate grammar, too.

/// @param version of the program, three numbers
QByteArray codePackage(const QString& version);
QByteArray codeLanguage();
QByteArray textMateGrammar(const Grammar& grammar);

} // namespace nsSyntax
