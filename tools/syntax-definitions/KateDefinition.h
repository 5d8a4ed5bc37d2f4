#pragma once

#include <QByteArray>

namespace nsSyntax {

class Grammar;

/// The definition for Kate, KWrite and all others that highlight with KDE's library.
QByteArray kateDefinition(const Grammar& grammar);

} // namespace nsSyntax
