#pragma once

#include "ProcTable.h"

#include <QVector>

namespace nsProc {

// The processors, a file each.

const ProcTable& xpBlze3Table();
const ProcTable& xpBlze6Table();
const ProcTable& lMico8v3xTable();

/// All processors that the program knows.
const QVector<const ProcTable*>& procTables();
/// The processor with this display name, null if there is none.
const ProcTable* procTable(const QString& name);

} // namespace nsProc
