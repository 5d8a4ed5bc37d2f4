#pragma once

#include "DocumentFormat.h"
#include "DocumentOnDisk.h"

#include <QHash>
#include <QObject>
#include <QPointer>

class MyNoticeBar;

namespace nsModEditor {

class DocumentKeeper;
class DocumentWatcher;
class EditorServices;
class EditorWidget;
class OpenDocuments;

/// Documents and their files on the disk: shows and writes contents, detects changes by others, follows them or asks
/// the user, by a bar at the upper edge of the document or before a save.
class DocumentSync : public QObject
{
    Q_OBJECT

public:
    /// Reads the open documents; writes their contents and files, and keeps what would be lost. Not owned.
    DocumentSync(const OpenDocuments* documents, EditorServices* services, DocumentKeeper* keeper,
                 QObject* parent = nullptr);

    /// After an open or a reload. @param asEdit the new text is a step that can be undone
    void showContent(EditorWidget* widget, const QByteArray& bytes, bool asEdit = false);
    /// The document gets another file, which is not written yet.
    void setNewPath(EditorWidget* widget, const QString& path);
    /// @return false: the reason has been reported
    bool canSaveAs(EditorWidget* widget, const QString& path);
    /// Writes the document over its file. @return false: the reason has been reported
    bool writeDocument(EditorWidget* widget);
    /// Writes the document if that is necessary, and asks if its file was changed by others.
    /// @return false: nothing was written
    bool saveChecked(EditorWidget* widget);
    /// True if the document was read from a file or written to one.
    bool isOnDisk(EditorWidget* widget) const { return m_disk.value(widget).onDisk.isKnown(); }
    /// The document is being closed.
    void forget(EditorWidget* widget) { m_disk.remove(widget); }
    /// Watches the files of the documents that are open now.
    void watchDocuments();

signals:
    void written(nsModEditor::EditorWidget* widget);

private slots:
    void checkDisk(const QString& path, bool sure);

private:
    /// The user's choice if a file and its document have both changed.
    enum eConflict_t { eConflictCancel = 0, eConflictKeepMine = 1, eConflictTakeFile = 2 };
    /// What is known of the file of a document.
    struct sDisk_t
    {
        DocumentOnDisk onDisk;
        QPointer<MyNoticeBar> notice;     ///< others have changed or removed the file
        QPointer<MyNoticeBar> lockNotice; ///< the file can not be shown as it is
        QByteArray reported;              ///< what the notice was about, closed or not
    };
    /// Shows what was read. @param asEdit as a step to undo
    void setContent(EditorWidget* widget, const QByteArray& bytes, bool asEdit);
    void setLocked(EditorWidget* widget, DocumentFormat::eObstacle_t obstacle);
    QByteArray encoded(EditorWidget* widget);
    eConflict_t askForConflict(EditorWidget* widget, const QByteArray& other, bool gone);
    eConflict_t compareWithFile(EditorWidget* widget, const QByteArray& other);
    bool takeFile(EditorWidget* widget);
    void keepMine(EditorWidget* widget);
    void writeAgain(EditorWidget* widget);
    void compareByNotice(EditorWidget* widget);
    void checkDisk(EditorWidget* widget);
    void showGoneNotice(EditorWidget* widget);
    void showChangedNotice(EditorWidget* widget);
    void removeDiskNotice(EditorWidget* widget);
    static void removeNotice(QPointer<MyNoticeBar>* bar);

    const OpenDocuments* m_documents; ///< not owned
    EditorServices* m_services;       ///< not owned
    DocumentKeeper* m_keeper;         ///< not owned
    QHash<EditorWidget*, sDisk_t> m_disk;
    DocumentWatcher* m_watcher = nullptr; ///< null before the first document
};

} // namespace nsModEditor
