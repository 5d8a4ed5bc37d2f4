#pragma once

#include "ImageProofResult.h"
#include "ImportFolder.h"
#include "ImportMsg.h"
#include "ImportStep.h"

#include <QCoreApplication>
#include <QStringList>
#include <QVector>

namespace nsImport {

/// A line of a program from elsewhere.
struct ImportOrigin
{
    QString file; ///< as the program was named
    int line = 0; ///< counted from 1; 0: there is none
    QString text;

    bool isValid() const { return line > 0; }
};

/// Makes a project of something from elsewhere: convert() makes it in memory, write() puts it on the disk.
///
/// All results are values; nothing is printed. One thread at a time may use a job, not always the same one.
class ImportJob
{
public:
    virtual ~ImportJob() = default;
    ImportJob(const ImportJob&) = delete;
    ImportJob& operator=(const ImportJob&) = delete;

    void setWatch(const ImportWatch& watch) { m_watch = watch; }
    /// To be called once. Nothing is written.
    void convert();
    /// The folder has files: write() without force would refuse, and with force might overwrite some.
    bool needsForce() const;
    /// @param force files of the folder that have the name of one of the result are overwritten
    /// @return false: why was reported, and the folder is as it was
    bool write(bool force);

    /// What is imported: the main source, or the image.
    virtual QString input() const = 0;
    /// Name of the project file and of what it writes, without a suffix.
    virtual QString name() const = 0;
    /// Path of the project file.
    QString projectFile() const { return folder() + '/' + name() + QStringLiteral(".nalvo"); }
    const QString& folder() const { return m_folder; }

    /// In their order; those of write() follow those of convert().
    const QVector<ImportMessage>& messages() const { return m_messages; }
    /// All that there were, those included that messages() has no room for.
    int errors() const { return m_errors; }
    /// What was supposed, for the user.
    const QStringList& notes() const { return m_notes; }
    /// The watch has ended the job.
    bool isCancelled() const { return m_isCancelled; }
    /// There is something to write. It may have lines that the assembler refuses.
    bool hasResult() const { return m_hasResult; }
    /// All that was there is in the result.
    bool isWhole() const { return m_isWhole; }
    bool isWritten() const { return m_isWritten; }
    int wordCount() const { return m_wordCount; }
    /// Lines of the result that the assembler refuses.
    int leftCount() const { return m_leftCount; }

    /// The user has named an image to compare with, and it could be read.
    bool hasReference() const { return m_hasReference; }
    /// The result was compared with it.
    bool isCompared() const { return m_isCompared; }
    /// All words of the result are those of the original.
    bool isProved() const { return m_isProved; }
    /// Of the comparison; meaningful if isCompared().
    const ImageProofResult& proof() const { return m_proof; }
    /// Words that the program does not have itself and the reference does not have either.
    int unlistedCount() const { return m_unlisted; }
    /// The line that an instruction of the result comes from.
    virtual ImportOrigin origin(const ProgramImage::Place&) const { return ImportOrigin(); }

protected:
    /// @param folder of the project; made if it is not there
    explicit ImportJob(const QString& folder);

    virtual void doConvert() = 0;
    /// What is written, and what must not be overwritten; absolute paths, without links.
    virtual QVector<ImportFile> files() const = 0;
    virtual QStringList originals() const = 0;

    /// Asks the watch. @return the job goes on
    bool goesOn(eImportStep_t step);
    /// Reads an image, and reports why it can not be read. @return it was read
    bool readImage(const QString& path, ProgramImage* image);
    void take(const ImportMessages& messages);
    void report(eImportMsg_t type, const QStringList& arguments);

    QString m_folder;
    QStringList m_notes;
    bool m_hasResult = false;
    bool m_isWhole = false;
    int m_wordCount = 0;
    int m_leftCount = 0;
    bool m_hasReference = false;
    bool m_isCompared = false;
    bool m_isProved = false;
    ImageProofResult m_proof;
    int m_unlisted = 0;

private:
    ImportWatch m_watch;
    QVector<ImportMessage> m_messages;
    int m_errors = 0;
    bool m_isCancelled = false;
    bool m_isWritten = false;
};

} // namespace nsImport
