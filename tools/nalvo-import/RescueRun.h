#pragma once

#include "ImportOptions.h"
#include "ImportReport.h"

#include <QCoreApplication>

namespace nsImport {
struct RescueResult;
}

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
    QString name() const;
    bool write(const nsImport::RescueResult& result);
    void showInvalidWords(const nsImport::RescueResult& result);
    void showSummary(const nsImport::RescueResult& result, bool isWritten);

    ImportOptions m_options;
    ImportReport m_report;
    QString m_folder;
};

} // namespace nsNalvoImport
