#pragma once

#include <QString>
#include <QStringList>

namespace nsModAsmFe {
class Opcode;
} // namespace nsModAsmFe

namespace nsNalvoSim {

struct SimProject;

/// The instruction that a label stands at.
/// @param name with namespace and "::" where it has one; "::" in front of all does no harm
/// @param failure why there is none, with names that are much like it
/// @return null if there is none
nsModAsmFe::Opcode* opcodeOfLabel(const SimProject& project, const QString& name, QString* failure);

/// Those of the names that the user may have meant, the most likely first, at most five.
QStringList nearNames(const QStringList& names, const QString& wanted);

} // namespace nsNalvoSim
