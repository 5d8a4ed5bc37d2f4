#pragma once

#include "ImportJob.h"

#include <memory>

namespace nsImport {

struct ForeignDialect;
class ForeignImport;

/// The import of a whole program for another assembler, with its proof.
class ProgramJob : public ImportJob
{
public:
    /// What is imported.
    struct Order
    {
        QString source;                          ///< the main source
        const ForeignDialect* dialect = nullptr; ///< null: told by the words of the source
        QStringList folders;                     ///< where included files are as well, and may be read
        QString reference;                       ///< image of the old tool; empty: none
        QString folder;                          ///< of the project; empty: name of the source
    };

    /// A dialect that can be chosen.
    struct Dialect
    {
        QString key;
        QString title; ///< for the user
    };
    static QVector<Dialect> dialects();
    /// The dialect with this key; null if there is none.
    static const ForeignDialect* dialectOf(const QString& key);

    explicit ProgramJob(const Order& order);
    ~ProgramJob() override;

    QString input() const override { return m_order.source; }
    QString name() const override;
    ImportOrigin origin(const ProgramImage::Place& place) const override;

    const ForeignImport& import() const { return *m_import; }
    /// For the user; with a result only.
    QString dialectTitle() const;
    int fileCount() const;
    /// Names that are other ones in the result.
    int renamedCount() const;
    /// A reference was asked for, and the result can not be called that of the old tool.
    bool isUnproved() const { return !m_order.reference.isEmpty() && !isProved(); }

protected:
    void doConvert() override;
    QVector<ImportFile> files() const override;
    QStringList originals() const override;

private:
    void compare();

    Order m_order;
    std::unique_ptr<ForeignImport> m_import;
    ProgramImage m_reference;
};

} // namespace nsImport
