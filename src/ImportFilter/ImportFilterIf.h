#pragma once

#include <QString>

namespace nsModImport {

/// A converter of one foreign dialect, line by line.
class ImportFilterIf
{
public:
    virtual ~ImportFilterIf() = default;

    virtual QString filterName() = 0;
    virtual QString description() = 0;
    /// Converts the line in place.
    /// @param line without its line end
    /// @return false if the line could not be converted; it is then untouched
    virtual bool convertLine(QString* line) = 0;
    /// Reads the rules; to be called once before the first line.
    virtual void setupRules() = 0;
    virtual void clearRules() = 0;
    /// Why the last line could not be converted, for the user; empty if it could not be split, and after a success.
    virtual QString problem() { return {}; }
};

} // namespace nsModImport
