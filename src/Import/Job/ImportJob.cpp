#include "ImportJob.h"

#include "ImageReader.h"

namespace nsImport {

ImportJob::ImportJob(const QString& folder)
    : m_folder(folder)
{
}

void ImportJob::convert()
{
    doConvert();
    if (m_isCancelled) {
        m_hasResult = false;
        m_isWhole = false;
    }
}

bool ImportJob::needsForce() const
{
    return ImportFolder(m_folder).hasFiles();
}

bool ImportJob::write(bool force)
{
    if (!m_hasResult)
        return false;
    ImportMessages messages;
    m_isWritten = ImportFolder(m_folder).write(files(), originals(), force, messages);
    take(messages);
    return m_isWritten;
}

bool ImportJob::goesOn(eImportStep_t step)
{
    m_isCancelled = m_isCancelled || (m_watch && !m_watch(step));
    return !m_isCancelled;
}

bool ImportJob::readImage(const QString& path, ProgramImage* image)
{
    const ImageResult result = ImageReader().readFile(path);
    m_notes += result.notes;
    if (!result.ok) {
        const QString place =
            result.errorLine > 0 ? QCoreApplication::translate("nsImport::ImportJob", "line %1: ").arg(result.errorLine)
                                 : QString();
        report(errImpReference, {path, place + result.error});
        return false;
    }
    *image = result.image;
    return true;
}

void ImportJob::take(const ImportMessages& messages)
{
    m_messages += messages.all();
    m_errors += messages.errors();
}

void ImportJob::report(eImportMsg_t type, const QStringList& arguments)
{
    ImportMessages messages;
    messages.add(type, arguments);
    take(messages);
}

} // namespace nsImport
