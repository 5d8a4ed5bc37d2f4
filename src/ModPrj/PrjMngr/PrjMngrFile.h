#pragma once

#include <QStringList>

class MyFileSelect;

namespace nsModPrj {

/// What the file dialogs and path fields for projects share.
class PrjMngrFile
{
public:
    /// Suffix of project files, without a dot.
    static QString suffix();
    static QStringList nameFilters();
    /// Suffix and filters for a field.
    static void setup(MyFileSelect* field);
    /// The absolute path; a name without a suffix gets that of project files.
    static QString fullPath(const QString& typed);
};

} // namespace nsModPrj
