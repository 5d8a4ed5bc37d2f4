#pragma once

#include "ImportJob.h"

#include <memory>

namespace nsProc {
struct ProcTable;
}

namespace nsImport {

struct RescueResult;

/// Makes a project of an image alone.
class RescueJob : public ImportJob
{
    Q_DECLARE_TR_FUNCTIONS(nsImport::RescueJob)

public:
    /// @param processor of the image; must live as long as the job
    /// @param folder of the project; empty: name of the image
    RescueJob(const QString& image, const nsProc::ProcTable& processor, const QString& folder);
    ~RescueJob() override;

    /// How a processor is called where it is chosen: "pb3", "pb6", "mico8".
    static QStringList processorKeys();
    /// The processor with this key; null if there is none.
    static const nsProc::ProcTable* processorOf(const QString& key);
    /// Its name for the user; empty if there is none.
    static QString processorName(const QString& key);

    QString input() const override { return m_image; }
    QString name() const override;

protected:
    void doConvert() override;
    QVector<ImportFile> files() const override;
    QStringList originals() const override;

private:
    void reportInvalidWords();

    QString m_image;
    const nsProc::ProcTable& m_processor;
    std::unique_ptr<RescueResult> m_result;
};

} // namespace nsImport
