#pragma once

#include "ForeignDialect.h"

namespace nsImport {

/// Tells the dialect of a source by its words.
struct DialectFinder
{
    const ForeignDialect* dialect = nullptr; ///< null: nothing tells
    QString because;                         ///< what told it, for the user

    /// @param text of the main source
    explicit DialectFinder(const QString& text);
};

} // namespace nsImport
