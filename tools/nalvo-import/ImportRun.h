#pragma once

#include "ImportFolder.h"
#include "ImportOptions.h"

#include "ForeignImport.h"
#include "ImageProof.h"

#include <QCoreApplication>
#include <QJsonObject>

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
    void setStamp(nsImport::ForeignImport::Options* options) const;
    void showMessages(const nsImport::ImportMessages& messages);
    void show(nsImport::eImportMsg_t type, const QStringList& arguments);
    void prove(const nsImport::ForeignImport& import);
    void showProof(const nsImport::ForeignImport& import, const nsImport::ImageProofResult& proof);
    bool write(const nsImport::ForeignImport& import);
    void showSummary(const nsImport::ForeignImport& import);
    void say(const QString& line);

    ImportOptions m_options;
    nsBatch::BatchMsg m_msg;
    nsImport::ProgramImage m_reference;
    bool m_hasReference = false;
    bool m_isProved = false;
    bool m_isWritten = false;
    QString m_folder;
    QString m_proof;
};

} // namespace nsNalvoImport
