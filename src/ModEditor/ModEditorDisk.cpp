// Documents whose files are changed by others: detecting the change, and following it or asking the user.

#include "ModEditor.h"

#include "DocumentWatcher.h"
#include "EditorRecovery.h"
#include "EditorWidget.h"
#include "MyNoticeBar.h"
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
        return ModEditor::tr(
            "The file has NUL bytes; only the text in front of the first one is shown. It is opened for "
            "reading and never written.");
    case DocumentFormat::eObstacleUtf16:
        return ModEditor::tr(
            "The file is UTF-16 text, which the assembler can not read. It is opened for reading and never "
            "written.");
    case DocumentFormat::eObstacleCharacters:
        return ModEditor::tr(
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

void ModEditor::setContent(EditorWidget* widget, const QByteArray& bytes, bool asEdit)
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

void ModEditor::showContent(EditorWidget* widget, const QByteArray& bytes)
{
    setContent(widget, bytes, false);
    if (widget->format().encoding() == DocumentFormat::eEncodingLatin1 && !widget->isReadOnly())
        showWarning(tr("File is no UTF-8 text, it is read and written as ISO 8859-1: ") + widget->filePath());
}

void ModEditor::setNewPath(EditorWidget* widget, const QString& path)
{
    widget->setFilePath(path);
    m_disk[widget].onDisk = DocumentOnDisk();
    removeDiskNotice(widget);
    watchDocuments();
}

void ModEditor::setLocked(EditorWidget* widget, DocumentFormat::eObstacle_t obstacle)
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

bool ModEditor::canSaveAs(EditorWidget* widget, const QString& path)
{
    if (widget->isReadOnly()) {
        showError(tr("Document is read-only and can not be saved: ") + widget->filePath());
        return false;
    }
    for (EditorWidget* other : qAsConst(m_editorWidgets)) {
        if (other == widget || other->filePath().isEmpty() || !DocumentOnDisk::isSameFile(other->filePath(), path))
            continue;
        // Two documents with the same file would overwrite each other without a question.
        showError(tr("Can not save under the name of another open document: ") + path);
        return false;
    }
    return true;
}

bool ModEditor::writeDocument(EditorWidget* widget)
{
    if (widget->isReadOnly()) {
        showError(tr("Document is read-only and can not be saved: ") + widget->filePath());
        return false;
    }
    const QByteArray bytes = encoded(widget);
    if (!writeFile(widget->filePath(), bytes))
        return false;
    m_disk[widget].onDisk = DocumentOnDisk(widget->filePath(), bytes);
    DocumentFormat format = widget->format();
    format.settle(widget->text());
    widget->setFormatOnDisk(format);
    widget->clearModified();
    if (m_recovery != nullptr)
        m_recovery->setSaved(widget);
    removeDiskNotice(widget);
    watchDocuments();
    setActionStateEditorWidget(widget);
    return true;
}

bool ModEditor::saveChecked(EditorWidget* widget)
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

ModEditor::eConflict_t ModEditor::askForConflict(EditorWidget* widget, const QByteArray& other, bool gone)
{
    const QString text = "<p>" +
                         (gone ? tr("The file was removed since it was read:")
                               : tr("The file was changed by another program since it was read:")) +
                         "</p><p><b>" + convToRelPath(widget->filePath()).toHtmlEscaped() + "</b><p><p>" +
                         (gone ? tr("It can be saved again.")
                               : tr("What the other program has written is lost if you keep your text. If you take the "
                                    "file, Undo brings your text back.")) +
                         "</p>";
    for (;;) {
        QMessageBox box(QMessageBox::Warning, gone ? tr("File was removed") : tr("File was changed outside"), text,
                        QMessageBox::NoButton, QApplication::activeWindow());
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
        if (clicked == nullptr || clicked == cancel || !m_editorWidgets.contains(widget))
            return eConflictCancel;
        if (clicked == mine)
            return eConflictKeepMine;
        if (clicked == file)
            return eConflictTakeFile;
        const eConflict_t answer = clicked == compare ? compareWithFile(widget, other) : eConflictCancel;
        if (answer != eConflictCancel || !m_editorWidgets.contains(widget))
            return answer;
    }
}

ModEditor::eConflict_t ModEditor::compareWithFile(EditorWidget* widget, const QByteArray& other)
{
    QString text;
    DocumentFormat::decode(other, &text);
    TextCompareDialog dialog(QApplication::activeWindow());
    dialog.setTexts(tr("In the editor"), widget->text(), tr("On the disk"), text);
    dialog.addButton(tr("Keep mine"), tr("Keeps the text of the editor, on the left"), eConflictKeepMine);
    dialog.addButton(tr("Take the file"), tr("Takes the text of the file, on the right; Undo brings yours back"),
                     eConflictTakeFile);
    const int answer = dialog.exec();
    return m_editorWidgets.contains(widget) ? eConflict_t(answer) : eConflictCancel;
}

/// Puts the changed text of a document aside before that of its file replaces it. Undo does not bring it back where the
/// document is being closed, or where the file can only be read.
bool ModEditor::keepReplacedText(EditorWidget* widget)
{
    if (!widget->isModified() || m_recovery == nullptr)
        return true;
    if (!keepText(widget, false))
        return false;
    m_recovery->release(widget);
    return true;
}

/// Takes over what the file holds now.
bool ModEditor::takeFile(EditorWidget* widget)
{
    QByteArray bytes;
    if (!readFile(widget->filePath(), &bytes) || !keepReplacedText(widget))
        return false;
    setContent(widget, bytes, true);
    return true;
}

/// The next save overwrites the file, whatever its content is.
void ModEditor::keepMine(EditorWidget* widget)
{
    QByteArray other;
    sDisk_t& disk = m_disk[widget];
    if (disk.onDisk.state(widget->filePath(), &other) == DocumentOnDisk::eStateChanged && !other.isNull())
        disk.onDisk = DocumentOnDisk(widget->filePath(), other);
    widget->document()->setModified(true);
    removeDiskNotice(widget);
}

void ModEditor::watchDocuments()
{
    if (m_watcher == nullptr) {
        m_watcher = new DocumentWatcher(this);
        connect(m_watcher, SIGNAL(touched(QString, bool)), this, SLOT(checkDisk(QString, bool)));
    }
    QStringList paths;
    for (EditorWidget* widget : qAsConst(m_editorWidgets)) {
        if (!widget->filePath().isEmpty())
            paths.append(widget->filePath());
    }
    m_watcher->setPaths(paths);
}

void ModEditor::checkDisk(const QString& path, bool sure)
{
    const QList<EditorWidget*> widgets = m_editorWidgets;
    for (EditorWidget* widget : widgets) {
        if (widget->filePath() == path && m_disk.contains(widget) && (sure || !m_disk[widget].onDisk.looksSame(path)))
            checkDisk(widget);
    }
}

void ModEditor::checkDisk(EditorWidget* widget)
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
            m_recovery != nullptr && keepText(widget, false))
            m_recovery->release(widget);
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

void ModEditor::showGoneNotice(EditorWidget* widget)
{
    auto* bar = new MyNoticeBar(MyNoticeBar::eGradeWarning, tr("The file is gone from the disk."));
    connect(bar->addButton(tr("Save again"), tr("Writes the text into a file of the same name")), &QPushButton::clicked,
            widget, [this, widget] { writeAgain(widget); });
    m_disk[widget].notice = bar;
    widget->addNotice(bar);
}

void ModEditor::showChangedNotice(EditorWidget* widget)
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
void ModEditor::writeAgain(EditorWidget* widget)
{
    QByteArray other;
    if (m_disk[widget].onDisk.state(widget->filePath(), &other) == DocumentOnDisk::eStateGone)
        writeDocument(widget);
    else
        saveChecked(widget);
}

void ModEditor::compareByNotice(EditorWidget* widget)
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

void ModEditor::removeDiskNotice(EditorWidget* widget)
{
    sDisk_t& disk = m_disk[widget];
    disk.reported.clear();
    removeNotice(&disk.notice);
}

/// Later, as the bar may be the one whose button is just being pressed.
void ModEditor::removeNotice(QPointer<MyNoticeBar>* bar)
{
    if (*bar == nullptr)
        return;
    (*bar)->dismiss();
    bar->clear();
}

void ModEditor::setLineEnd(int lineEnd)
{
    EditorWidget* widget = currentEditorWidget();
    if (widget == nullptr || widget->isReadOnly())
        return;
    DocumentFormat format = widget->format();
    format.setLineEnd(DocumentFormat::eLineEnd_t(lineEnd));
    widget->setFormat(format);
}

void ModEditor::setMark(bool mark)
{
    EditorWidget* widget = currentEditorWidget();
    if (widget == nullptr || widget->isReadOnly())
        return;
    DocumentFormat format = widget->format();
    format.setMark(mark && format.encoding() == DocumentFormat::eEncodingUtf8);
    widget->setFormat(format);
}

} // namespace nsModEditor
