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
    /// @return false if the line could not be split; it is then untouched
    virtual bool convertLine(QString* line) = 0;
    virtual void setupRules() = 0;
    virtual void clearRules() = 0;
};

} // namespace nsModImport
