#pragma once

#include <QByteArray>

namespace nsSyntax {

class Grammar;

/// The definition for gedit, GNOME Builder and all others that highlight with GtkSourceView 4 or 5.
QByteArray gtkDefinition(const Grammar& grammar);

} // namespace nsSyntax
