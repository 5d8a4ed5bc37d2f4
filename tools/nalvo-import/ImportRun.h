#pragma once

#include "ImportOptions.h"
#include "ImportReport.h"

#include "ProgramJob.h"

#include <QCoreApplication>

namespace nsNalvoImport {

/// One run of the program: converts, proves, writes, and sums up.
class ImportRun
{
    Q_DECLARE_TR_FUNCTIONS(nsNalvoImport::ImportRun)

public:
    explicit ImportRun(const ImportOptions& options);

    /// @return everything is done and proved as far as it was asked for
    bool run();

private:
    void showProof();
    void showProofAsJson();
    void showSummary();
    void showSummaryAsJson();
    QString proofText() const;

    ImportOptions m_options;
    ImportReport m_report;
    nsImport::ProgramJob m_job;
};

} // namespace nsNalvoImport
