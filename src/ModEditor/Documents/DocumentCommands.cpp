#include "DocumentCommands.h"

#include "DialogParent.h"
#include "DocumentKeeper.h"
#include "DocumentPages.h"
#include "DocumentSync.h"
#include "EditorServices.h"
#include "EditorWidget.h"
#include "HelpRef.h"
#include "OpenDocuments.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>

#include <algorithm>

namespace nsModEditor {

namespace {

/// A new page without a file, a text or a change.
bool isUntouched(EditorWidget* widget)
{
    return widget->filePath().isEmpty() && !widget->isModified() && widget->document()->isEmpty();
}

void setupDialog(QFileDialog* dialog)
{
    HelpRef::set(dialog, QStringLiteral("pageId://editor#file-menu"));
    dialog->setNameFilters({DocumentCommands::tr("Assembler files(*.psm)"), DocumentCommands::tr("Any files(*)")});
    dialog->setDefaultSuffix("psm");
    dialog->setViewMode(QFileDialog::List);
    dialog->setOption(QFileDialog::DontUseNativeDialog);
}

} // namespace

DocumentCommands::DocumentCommands(const OpenDocuments* documents, EditorServices* services, DocumentKeeper* keeper,
                                   DocumentSync* sync, DocumentPages* pages, QObject* parent)
    : QObject(parent)
    , m_documents(documents)
    , m_services(services)
    , m_keeper(keeper)
    , m_sync(sync)
    , m_pages(pages)
{
}

void DocumentCommands::newFile(const QString& text)
{
    EditorWidget* widget = m_pages->newEditorWidget(QString());
    widget->setText(text);
    // What a script or an import brings is nowhere on the disk.
    widget->document()->setModified(!text.isEmpty());
    m_documents->reportOpened(widget);
}

EditorWidget* DocumentCommands::openFile(const QString& path)
{
    if (EditorWidget* open = m_documents->of(path)) {
        m_documents->show(open);
        return open;
    }
    QByteArray bytes;
    if (!m_services->readFile(path, &bytes))
        return nullptr;
    QPointer<EditorWidget> widget = m_pages->newEditorWidget(path);
    m_sync->showContent(widget, bytes);
    m_keeper->session().noteOpened(widget);
    m_documents->reportOpened(widget);
    // While this asks a question, the user can close the page.
    m_services->chkProjectMembership(path);
    return m_documents->contains(widget) ? widget.data() : nullptr;
}

void DocumentCommands::openFilesByDialog()
{
    const QPointer<QFileDialog> dialog(
        new QFileDialog(DialogParent::get(), tr("Open file"), m_services->projectFolder()));
    setupDialog(dialog);
    dialog->setFileMode(QFileDialog::ExistingFiles);
    const bool accepted = dialog->exec() == QDialog::Accepted;
    // The window can be gone, and this object with it.
    if (dialog == nullptr)
        return;
    const QStringList paths = accepted ? dialog->selectedFiles() : QStringList();
    delete dialog;
    for (const QString& path : paths)
        openFile(path);
}

void DocumentCommands::openDroppedFiles(const QStringList& paths)
{
    for (const QString& path : paths)
        openFile(path);
    m_documents->focusCurrent();
}

bool DocumentCommands::selectFile(const QString& path)
{
    EditorWidget* widget = m_documents->of(path);
    if (widget == nullptr)
        return false;
    m_documents->show(widget);
    return true;
}

bool DocumentCommands::saveFile(EditorWidget* widget)
{
    if (widget == nullptr)
        return false;
    if (widget->filePath().isEmpty())
        return saveFileAs(widget);
    return m_sync->saveChecked(widget);
}

bool DocumentCommands::saveFile()
{
    return m_services->inGroup(tr("Saving..."), [this] {
        const bool success = saveFile(m_documents->current());
        m_services->setFileContentChanged();
        return success;
    });
}

void DocumentCommands::saveAllFiles()
{
    m_services->inGroup(tr("Saving..."), [this] {
        // While the dialog for an untitled document is open, the user can close pages.
        const QList<EditorWidget*> widgets = m_documents->all();
        for (EditorWidget* widget : widgets) {
            // A file that the user has not touched here is left to whoever may have changed or removed it, and a page
            // that nobody has typed into needs no name.
            if (m_documents->contains(widget) && !isUntouched(widget) &&
                (widget->isModified() || !m_sync->isOnDisk(widget)))
                saveFile(widget);
        }
        m_services->setFileContentChanged();
        return true;
    });
}

bool DocumentCommands::saveFileAs(EditorWidget* widget)
{
    if (widget == nullptr)
        return false;
    const QPointer<QFileDialog> dialog(new QFileDialog(DialogParent::get(), tr("Save file"), m_lastPath));
    setupDialog(dialog);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    const bool accepted = dialog->exec() == QDialog::Accepted;
    // The window can be gone, and this object with it.
    if (dialog == nullptr)
        return false;
    const QStringList names = dialog->selectedFiles();
    delete dialog;
    if (!accepted || !m_documents->contains(widget))
        return false;
    if (names.size() != 1 || names.first().isEmpty())
        return false;
    const QString name = names.first();
    if (!m_sync->canSaveAs(widget, name))
        return false;
    m_lastPath = QFileInfo(name).absolutePath();
    return saveUnder(widget, name);
}

bool DocumentCommands::saveUnder(EditorWidget* widget, const QString& path)
{
    m_sync->setNewPath(widget, path);
    m_services->chkProjectMembership(path);
    if (!m_documents->contains(widget) || !m_sync->writeDocument(widget))
        return false;
    emit renamed(widget, m_services->relPath(path));
    return true;
}

bool DocumentCommands::saveFileAs()
{
    return m_services->inGroup(tr("Saving..."), [this] {
        const bool success = saveFileAs(m_documents->current());
        m_services->setFileContentChanged();
        return success;
    });
}

bool DocumentCommands::saveFileAs(const QString& path)
{
    EditorWidget* widget = m_documents->current();
    if (path.isEmpty() || widget == nullptr)
        return false;
    return m_services->inGroup(tr("Saving..."), [this, widget, path] {
        if (!m_sync->canSaveAs(widget, path) || !saveUnder(widget, path))
            return false;
        m_services->setFileContentChanged();
        return true;
    });
}

void DocumentCommands::reloadFile(EditorWidget* widget)
{
    if (widget == nullptr || widget->filePath().isEmpty())
        return;
    const QString path = widget->filePath();
    if (widget->isModified()) {
        if (!m_services->askForReload(path) || !m_documents->contains(widget))
            return;
        m_keeper->keepText(widget, false);
        m_keeper->release(widget);
    }
    QByteArray bytes;
    if (m_documents->contains(widget) && m_services->readFile(path, &bytes))
        m_sync->showContent(widget, bytes, m_reloadKeepsUndo);
}

void DocumentCommands::reloadAllFiles()
{
    const QList<EditorWidget*> widgets = m_documents->all();
    for (EditorWidget* widget : widgets) {
        if (m_documents->contains(widget))
            reloadFile(widget);
    }
}

void DocumentCommands::closeFile(EditorWidget* widget)
{
    if (widget == nullptr)
        return;
    settleFile(widget, false);
    if (m_documents->contains(widget))
        m_pages->removeEditorWidget(widget);
}

void DocumentCommands::closeFiles(const QList<EditorWidget*>& widgets)
{
    const auto close = [this, &widgets] {
        for (EditorWidget* widget : widgets) {
            if (m_documents->contains(widget))
                closeFile(widget);
        }
        return true;
    };
    // Only a save can report. A close that saves nothing leaves the messages of the last run alone.
    if (std::any_of(widgets.begin(), widgets.end(), [](EditorWidget* widget) { return widget->isModified(); }))
        m_services->inGroup(tr("Closing..."), close);
    else
        close();
}

void DocumentCommands::closeAllFiles()
{
    const QList<EditorWidget*> widgets = m_documents->all();
    closeFiles(widgets);
}

void DocumentCommands::closeOtherFiles()
{
    QList<EditorWidget*> widgets = m_documents->all();
    widgets.removeOne(m_documents->current());
    closeFiles(widgets);
}

void DocumentCommands::settleFiles(bool isNew)
{
    const QList<EditorWidget*> widgets = m_documents->all();
    for (EditorWidget* widget : widgets) {
        if (m_documents->contains(widget))
            settleFile(widget, isNew);
    }
}

/// Asks whether a changed document is to be saved. Afterwards its text is in its file or in the recovery store, unless
/// there is room in neither and the user gives it up. The document may be gone.
void DocumentCommands::settleFile(EditorWidget* widget, bool isNew)
{
    const auto givenUp = m_givenUp.constFind(widget);
    if (m_keeper->isKept(widget) || (givenUp != m_givenUp.constEnd() && *givenUp == widget->text()))
        return;
    if (!widget->isModified()) {
        // The text of a file that was removed by others exists only here.
        if (m_sync->isOnDisk(widget) && !widget->isReadOnly() && !QFileInfo::exists(widget->filePath()))
            m_keeper->keepText(widget, isNew);
        return;
    }
    const bool isSaved =
        m_services->askForSave(widget->filePath()) && m_documents->contains(widget) && saveFile(widget);
    while (!isSaved && m_documents->contains(widget) && !m_keeper->keepText(widget, isNew)) {
        if (m_services->ask(tr("Text can not be kept"), tr("Neither the file nor a copy of the text can be written:"),
                            widget->filePath(), {tr("Do you want to give the text up?")})) {
            // Whoever closes the project or ends the program passes here more than once.
            if (m_documents->contains(widget))
                m_givenUp.insert(widget, widget->text());
            return;
        }
        if (m_documents->contains(widget) && saveFileAs(widget))
            return;
    }
}

void DocumentCommands::setLineEnd(int lineEnd)
{
    EditorWidget* widget = m_documents->current();
    if (widget == nullptr || widget->isReadOnly())
        return;
    DocumentFormat format = widget->format();
    format.setLineEnd(DocumentFormat::eLineEnd_t(lineEnd));
    widget->setFormat(format);
}

void DocumentCommands::setMark(bool mark)
{
    EditorWidget* widget = m_documents->current();
    if (widget == nullptr || widget->isReadOnly())
        return;
    DocumentFormat format = widget->format();
    format.setMark(mark && format.encoding() == DocumentFormat::eEncodingUtf8);
    widget->setFormat(format);
}

void DocumentCommands::printFile(EditorWidget* widget)
{
    if (widget == nullptr)
        return;
    QPrinter printer(QPrinter::HighResolution);
    QPrintDialog dialog(&printer, widget);
    dialog.setWindowTitle(tr("Print Document"));
    dialog.setOption(QAbstractPrintDialog::PrintSelection, widget->hasSelection());
    if (dialog.exec() == QDialog::Accepted && m_documents->contains(widget))
        printFile(widget, &printer);
}

void DocumentCommands::printFile(EditorWidget* widget, QPrinter* printer)
{
    const QString name = m_services->nameOf(widget->filePath());
    if (!PrintedPages::print(widget->printJob(name, printer->printRange() == QPrinter::Selection), printer))
        m_services->showError(tr("Can not print: ") + name);
}

} // namespace nsModEditor
