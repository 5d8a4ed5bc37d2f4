#pragma once

#include "HelpPage.h"

#include <QString>
#include <QVector>

namespace nsProc {
struct ProcTable;
}

namespace nsHelpBuild {

/// The id of the page of a processor's instructions; empty for a processor that the help does not know.
QString instructionPageId(const nsProc::ProcTable& table);

/// The pages of the instruction sets, one for each processor: forms and words from the processors' tables, the rest
/// from a file for each mnemonic.
/// @param folder holds NAME.md for each mnemonic
/// @param errors one line for each file that is missing, has no head or belongs to no mnemonic
QVector<HelpPage> instructionPages(const QString& folder, QStringList* errors);

} // namespace nsHelpBuild
