#pragma once

#include "ForeignProgram.h"
#include "ImportMsg.h"

#include <QCoreApplication>
#include <QHash>
#include <QSet>
#include <QStringList>

namespace nsImport {

class ForeignScanner;

/// Reads a foreign program with all that it includes.
///
/// Nothing is read outside of the folder of the main source and the folders that the user has named, whatever the
/// program names: neither by an absolute path, nor by "..", nor by a link.
class ForeignReader
{
    Q_DECLARE_TR_FUNCTIONS(nsImport::ForeignReader)

public:
    static constexpr int maxFileBytes = 16 << 20; ///< of one source
    static constexpr int maxAllBytes = 64 << 20;  ///< of all sources, those that are included again counted again
    static constexpr int maxFiles = 1000;
    static constexpr int maxLines = 2000000;    ///< of all files, those that are included again counted again
    static constexpr int maxDepth = 32;         ///< of files that include each other
    static constexpr int maxLineLength = 10000; ///< in characters

    /// @param mainFile the source that includes the others
    /// @param folders where included files are looked for after the folders of the program, and may be read
    /// @param messages not owned
    ForeignReader(const QString& mainFile, const QStringList& folders, ImportMessages& messages);

    /// The text of the main source, to tell its dialect. @return false: it can not be read, which was reported
    bool readMain(QString* text);
    /// Reads all files. @return false: something can not be read, which was reported
    bool read(const ForeignDialect& dialect, ForeignProgram* program);

    /// The files that were read; absolute paths, without links.
    QStringList filesRead() const { return m_filesRead.values(); }

private:
    struct Content
    {
        QStringList lines;
        bool isUtf8 = true;
        int bytes = 0;
    };

    const Content* contentOf(const QString& path, const QString& shown, const QString& from, int line);
    bool decode(const QByteArray& bytes, const QString& path, Content* content);
    bool readFile(const QString& path, const QString& name, const ForeignDialect& dialect, ForeignProgram* program);
    void endsAt(ForeignStatement* statement, const QString& path, const Content& content, ForeignScanner* scanner);
    bool include(const ForeignStatement& statement, const ForeignDialect& dialect, ForeignProgram* program);
    QString find(const QString& name, const QString& fromDir, QString* refused) const;
    static QString existing(const QString& dir, const QString& name);
    bool isAllowed(const QString& path) const;

    QString m_mainFile;
    QStringList m_folders; ///< the user's
    QStringList m_roots;   ///< what may be read lies in one of them; without links
    ImportMessages& m_messages;
    QHash<QString, Content> m_contents; ///< by path
    QSet<QString> m_filesRead;
    QStringList m_stack; ///< files that are being read
    qint64 m_allBytes = 0;
};

} // namespace nsImport
