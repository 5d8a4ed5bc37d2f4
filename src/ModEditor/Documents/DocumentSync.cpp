#include "DocumentSync.h"

#include "DialogParent.h"
#include "DocumentKeeper.h"
#include "DocumentWatcher.h"
#include "EditorRecovery.h"
#include "EditorServices.h"
#include "EditorWidget.h"
#include "HelpRef.h"
#include "MyNoticeBar.h"
#include "OpenDocuments.h"
#include "TextCompareDialog.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QMessageBox>
#include <QPushButton>

namespace nsModEditor {

namespace {

QString reasonOf(DocumentFormat::eObstacle_t obstacle)
{
    switch (obstacle) {
    case DocumentFormat::eObstacleNul:
        return DocumentSync::tr(
            "The file has NUL bytes; only the text in front of the first one is shown. It is opened for "
            "reading and never written.");
    case DocumentFormat::eObstacleUtf16:
        return DocumentSync::tr(
            "The file is UTF-16 text, which the assembler can not read. It is opened for reading and never "
            "written.");
    case DocumentFormat::eObstacleCharacters:
        return DocumentSync::tr(
            "The file has characters that would be lost in an editor. It is opened for reading and never "
            "written.");
    case DocumentFormat::eObstacleNone:
        break;
    }
    return QString();
}

/// Identifies a change of a file by others, so that each change is reported once.
QByteArray changeIdOf(DocumentOnDisk::eState_t state, const QByteArray& bytes)
{
    return QByteArray::number(state) + QCryptographicHash::hash(bytes, QCryptographicHash::Sha1);
}

} // namespace

DocumentSync::DocumentSync(const OpenDocuments* documents, EditorServices* services, DocumentKeeper* keeper,
                           QObject* parent)
    : QObject(parent)
    , m_documents(documents)
    , m_services(services)
    , m_keeper(keeper)
{
}

void DocumentSync::setContent(EditorWidget* widget, const QByteArray& bytes, bool asEdit)
{
    QString text;
    DocumentFormat format = DocumentFormat::decode(bytes, &text);
    widget->setFormatOnDisk(format);
    if (asEdit && format.obstacle() == DocumentFormat::eObstacleNone && !widget->isReadOnly())
        widget->changeText(text);
    else
        widget->setText(text);
    // Checks that writing the text gives the bytes of the file.
    if (format.obstacle() == DocumentFormat::eObstacleNone && format.encode(widget->text()) != bytes)
        format.setObstacle(DocumentFormat::eObstacleCharacters);
    widget->setFormatOnDisk(format);
    widget->clearModified();
    m_disk[widget].onDisk = DocumentOnDisk(widget->filePath(), bytes);
    setLocked(widget, format.obstacle());
    removeDiskNotice(widget);
    watchDocuments();
}

void DocumentSync::showContent(EditorWidget* widget, const QByteArray& bytes, bool asEdit)
{
    setContent(widget, bytes, asEdit);
    if (widget->format().encoding() == DocumentFormat::eEncodingLatin1 && !widget->isReadOnly())
        m_services->showWarning(tr("File is no UTF-8 text, it is read and written as ISO 8859-1: ") +
                                widget->filePath());
}

void DocumentSync::setNewPath(EditorWidget* widget, const QString& path)
{
    widget->setFilePath(path);
    m_disk[widget].onDisk = DocumentOnDisk();
    removeDiskNotice(widget);
    watchDocuments();
}

void DocumentSync::setLocked(EditorWidget* widget, DocumentFormat::eObstacle_t obstacle)
{
    const bool locked = obstacle != DocumentFormat::eObstacleNone;
    if (widget->isReadOnly() != locked)
        widget->setLocked(locked);
    QPointer<MyNoticeBar>& bar = m_disk[widget].lockNotice;
    removeNotice(&bar);
    if (!locked)
        return;
    bar = new MyNoticeBar(MyNoticeBar::eGradeWarning, reasonOf(obstacle));
    widget->addNotice(bar);
}

bool DocumentSync::canSaveAs(EditorWidget* widget, const QString& path)
{
    if (widget->isReadOnly()) {
        m_services->showError(tr("Document is read-only and can not be saved: ") + widget->filePath());
        return false;
    }
    for (EditorWidget* other : m_documents->all()) {
        if (other == widget || other->filePath().isEmpty() || !DocumentOnDisk::isSameFile(other->filePath(), path))
            continue;
        // Two documents with the same file would overwrite each other without a question.
        m_services->showError(tr("Can not save under the name of another open document: ") + path);
        return false;
    }
    return true;
}

bool DocumentSync::writeDocument(EditorWidget* widget)
{
    if (widget->isReadOnly()) {
        m_services->showError(tr("Document is read-only and can not be saved: ") + widget->filePath());
        return false;
    }
    if (widget->comfort().trimOnSaveEn)
        widget->lineCommands().removeTrailingBlanks(true);
    const QByteArray bytes = encoded(widget);
    if (!m_services->writeFile(widget->filePath(), bytes))
        return false;
    m_disk[widget].onDisk = DocumentOnDisk(widget->filePath(), bytes);
    DocumentFormat format = widget->format();
    format.settle(widget->text());
    widget->setFormatOnDisk(format);
    widget->clearModified();
    if (m_keeper->recovery() != nullptr)
        m_keeper->recovery()->setSaved(widget);
    removeDiskNotice(widget);
    watchDocuments();
    emit written(widget);
    return true;
}

/// The bytes of a document for its file.
QByteArray DocumentSync::encoded(EditorWidget* widget)
{
    const QString text = widget->text();
    DocumentFormat format = widget->format();
    if (!format.canEncode(text)) {
        // The text has a character that Latin-1 does not have: the document changes to UTF-8.
        format.setEncoding(DocumentFormat::eEncodingUtf8);
        widget->setFormat(format);
        m_services->showWarning(tr("File is written as UTF-8 from now on: ") + widget->filePath());
    }
    return format.encode(text);
}

bool DocumentSync::saveChecked(EditorWidget* widget)
{
    const DocumentOnDisk onDisk = m_disk.value(widget).onDisk;
    QByteArray other;
    const DocumentOnDisk::eState_t state = onDisk.state(widget->filePath(), &other);
    if (state == DocumentOnDisk::eStateSame && onDisk.isKnown() && !widget->isModified())
        return true;
    if (state == DocumentOnDisk::eStateSame || state == DocumentOnDisk::eStateNoFile)
        return writeDocument(widget);
    if (state == DocumentOnDisk::eStateChanged && onDisk.isKnown() && !widget->isModified() && !other.isNull()) {
        // The document has no changes that could be lost.
        setContent(widget, other, true);
        return true;
    }
    switch (askForConflict(widget, other, state == DocumentOnDisk::eStateGone)) {
    case eConflictKeepMine:
        return writeDocument(widget);
    case eConflictTakeFile:
        return takeFile(widget);
    case eConflictCancel:
        break;
    }
    return false;
}

DocumentSync::eConflict_t DocumentSync::askForConflict(EditorWidget* widget, const QByteArray& other, bool gone)
{
    const QString text = "<p>" +
                         (gone ? tr("The file was removed since it was read:")
                               : tr("The file was changed by another program since it was read:")) +
                         "</p><p><b>" + m_services->relPath(widget->filePath()).toHtmlEscaped() + "</b><p><p>" +
                         (gone ? tr("It can be saved again.")
                               : tr("What the other program has written is lost if you keep your text. If you take the "
                                    "file, Undo brings your text back.")) +
                         "</p>";
    for (;;) {
        QMessageBox box(QMessageBox::Warning, gone ? tr("File was removed") : tr("File was changed outside"), text,
                        QMessageBox::NoButton, DialogParent::get());
        HelpRef::set(&box, QStringLiteral("pageId://editor#changes-outside"));
        QPushButton* mine = box.addButton(gone ? tr("Save again") : tr("Keep mine"), QMessageBox::AcceptRole);
        QPushButton* file = nullptr;
        QPushButton* compare = nullptr;
        if (!other.isNull()) {
            file = box.addButton(tr("Take the file"), QMessageBox::DestructiveRole);
            compare = box.addButton(tr("Compare..."), QMessageBox::ActionRole);
        }
        // Neither Enter nor Esc loses one of the texts.
        QPushButton* cancel = box.addButton(tr("Cancel"), QMessageBox::RejectRole);
        box.setDefaultButton(cancel);
        box.setEscapeButton(cancel);
        box.exec();
        QAbstractButton* clicked = box.clickedButton();
        // Pages can be closed while the question is open.
        if (clicked == nullptr || clicked == cancel || !m_documents->contains(widget))
            return eConflictCancel;
        if (clicked == mine)
            return eConflictKeepMine;
        if (clicked == file)
            return eConflictTakeFile;
        const eConflict_t answer = clicked == compare ? compareWithFile(widget, other) : eConflictCancel;
        if (answer != eConflictCancel || !m_documents->contains(widget))
            return answer;
    }
}

DocumentSync::eConflict_t DocumentSync::compareWithFile(EditorWidget* widget, const QByteArray& other)
{
    QString text;
    DocumentFormat::decode(other, &text);
    TextCompareDialog dialog(DialogParent::get());
    dialog.setTexts(tr("In the editor"), widget->text(), tr("On the disk"), text);
    dialog.addButton(tr("Keep mine"), tr("Keeps the text of the editor, on the left"), eConflictKeepMine);
    dialog.addButton(tr("Take the file"), tr("Takes the text of the file, on the right; Undo brings yours back"),
                     eConflictTakeFile);
    const int answer = dialog.exec();
    return m_documents->contains(widget) ? eConflict_t(answer) : eConflictCancel;
}

/// Takes over what the file holds now.
bool DocumentSync::takeFile(EditorWidget* widget)
{
    QByteArray bytes;
    if (!m_services->readFile(widget->filePath(), &bytes) || !m_keeper->keepReplacedText(widget))
        return false;
    setContent(widget, bytes, true);
    return true;
}

/// The next save overwrites the file, whatever its content is.
void DocumentSync::keepMine(EditorWidget* widget)
{
    QByteArray other;
    sDisk_t& disk = m_disk[widget];
    if (disk.onDisk.state(widget->filePath(), &other) == DocumentOnDisk::eStateChanged && !other.isNull())
        disk.onDisk = DocumentOnDisk(widget->filePath(), other);
    widget->document()->setModified(true);
    removeDiskNotice(widget);
}

void DocumentSync::watchDocuments()
{
    if (m_watcher == nullptr) {
        m_watcher = new DocumentWatcher(this);
        connect(m_watcher, SIGNAL(touched(QString, bool)), this, SLOT(checkDisk(QString, bool)));
    }
    QStringList paths;
    for (EditorWidget* widget : m_documents->all()) {
        if (!widget->filePath().isEmpty())
            paths.append(widget->filePath());
    }
    m_watcher->setPaths(paths);
}

void DocumentSync::checkDisk(const QString& path, bool sure)
{
    const QList<EditorWidget*> widgets = m_documents->all();
    for (EditorWidget* widget : widgets) {
        if (widget->filePath() == path && m_disk.contains(widget) && (sure || !m_disk[widget].onDisk.looksSame(path)))
            checkDisk(widget);
    }
}

void DocumentSync::checkDisk(EditorWidget* widget)
{
    sDisk_t& disk = m_disk[widget];
    QByteArray other;
    const DocumentOnDisk::eState_t state = disk.onDisk.state(widget->filePath(), &other);
    if (state == DocumentOnDisk::eStateSame || state == DocumentOnDisk::eStateNoFile || !disk.onDisk.isKnown()) {
        if (state == DocumentOnDisk::eStateSame)
            removeDiskNotice(widget);
        return;
    }
    if (state == DocumentOnDisk::eStateChanged && !widget->isModified() && !other.isNull()) {
        QString text;
        // A file that was destroyed takes the steps to undo with it: the good text is kept.
        if (DocumentFormat::decode(other, &text).obstacle() != DocumentFormat::eObstacleNone && !widget->isReadOnly() &&
            m_keeper->recovery() != nullptr && m_keeper->keepText(widget, false))
            m_keeper->release(widget);
        setContent(widget, other, true);
        return;
    }
    if (disk.reported == changeIdOf(state, other))
        return;
    removeDiskNotice(widget);
    disk.reported = changeIdOf(state, other);
    if (state == DocumentOnDisk::eStateGone)
        showGoneNotice(widget);
    else
        showChangedNotice(widget);
}

void DocumentSync::showGoneNotice(EditorWidget* widget)
{
    auto* bar = new MyNoticeBar(MyNoticeBar::eGradeWarning, tr("The file is gone from the disk."));
    connect(bar->addButton(tr("Save again"), tr("Writes the text into a file of the same name")), &QPushButton::clicked,
            widget, [this, widget] { writeAgain(widget); });
    m_disk[widget].notice = bar;
    widget->addNotice(bar);
}

void DocumentSync::showChangedNotice(EditorWidget* widget)
{
    auto* bar = new MyNoticeBar(MyNoticeBar::eGradeWarning, tr("File and document have both changed."));
    connect(bar->addButton(tr("Compare..."), tr("Shows both texts side by side")), &QPushButton::clicked, widget,
            [this, widget] { compareByNotice(widget); });
    connect(bar->addButton(tr("Take the file"), tr("Takes the text of the file; Undo brings yours back")),
            &QPushButton::clicked, widget, [this, widget] { takeFile(widget); });
    connect(bar->addButton(tr("Keep mine"), tr("The next save writes your text over that of the file")),
            &QPushButton::clicked, widget, [this, widget] { keepMine(widget); });
    m_disk[widget].notice = bar;
    widget->addNotice(bar);
}

/// Asks the user if the file exists again.
void DocumentSync::writeAgain(EditorWidget* widget)
{
    QByteArray other;
    if (m_disk[widget].onDisk.state(widget->filePath(), &other) == DocumentOnDisk::eStateGone)
        writeDocument(widget);
    else
        saveChecked(widget);
}

void DocumentSync::compareByNotice(EditorWidget* widget)
{
    QByteArray other;
    if (m_disk[widget].onDisk.state(widget->filePath(), &other) != DocumentOnDisk::eStateChanged || other.isNull())
        return;
    switch (compareWithFile(widget, other)) {
    case eConflictKeepMine:
        keepMine(widget);
        break;
    case eConflictTakeFile:
        takeFile(widget);
        break;
    case eConflictCancel:
        break;
    }
}

void DocumentSync::removeDiskNotice(EditorWidget* widget)
{
    sDisk_t& disk = m_disk[widget];
    disk.reported.clear();
    removeNotice(&disk.notice);
}

/// Later, as the bar may be the one whose button is just being pressed.
void DocumentSync::removeNotice(QPointer<MyNoticeBar>* bar)
{
    if (*bar == nullptr)
        return;
    (*bar)->dismiss();
    bar->clear();
}

} // namespace nsModEditor
