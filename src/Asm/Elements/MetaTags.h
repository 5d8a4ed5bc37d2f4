#pragma once

#include <QString>

namespace nsModAsmFe {

/// The texts that HDL templates can ask for, filled at every run.
struct MetaTags
{
    QString prjPath; ///< absolute folder of the project
    QString prjFileName;
    QString prjTitle;
    QString prjVersion;
    QString prjComment;
    QString dateTime; ///< "yyyy-MM-dd hh:mm:ss ", with the blank at the end
};

} // namespace nsModAsmFe
