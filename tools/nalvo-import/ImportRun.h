#pragma once

#include "ImportFolder.h"
#include "ImportOptions.h"
#include "ImportReport.h"

#include "ForeignImport.h"
#include "ImageProof.h"

#include <QCoreApplication>

namespace nsNalvoImport {

/// One run of the program: reads, converts, proves, writes, and sums up.
class ImportRun
{
    Q_DECLARE_TR_FUNCTIONS(nsNalvoImport::ImportRun)

public:
    explicit ImportRun(const ImportOptions& options);

    /// @return everything is done and proved as far as it was asked for
    bool run();

private:
    bool readReference();
    void prove(const nsImport::ForeignImport& import);
    void showProof(const nsImport::ForeignImport& import, const nsImport::ImageProofResult& proof);
    bool write(const nsImport::ForeignImport& import);
    void showSummary(const nsImport::ForeignImport& import);

    ImportOptions m_options;
    ImportReport m_report;
    nsImport::ProgramImage m_reference;
    bool m_hasReference = false;
    bool m_isProved = false;
    bool m_isWritten = false;
    QString m_folder;
    QString m_proof;
};

} // namespace nsNalvoImport
