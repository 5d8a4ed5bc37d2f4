#pragma once

#include "ImportOptions.h"
#include "ImportReport.h"

#include "RescueJob.h"

#include <QCoreApplication>

namespace nsNalvoImport {

/// One run of the program that makes the sources from an image alone.
class RescueRun
{
    Q_DECLARE_TR_FUNCTIONS(nsNalvoImport::RescueRun)

public:
    explicit RescueRun(const ImportOptions& options);

    /// @return the project is written, and all words of the image are in it
    bool run();

private:
    void showSummary();

    ImportOptions m_options;
    ImportReport m_report;
    nsImport::RescueJob m_job;
};

} // namespace nsNalvoImport
