#pragma once

#include <QList>
#include <QMap>
#include <QObject>
#include <QString>

namespace nsModEditor {

class EditorWidget;
class OpenDocuments;

/// The marks of all open documents: where the simulator stops and starts, and what is cleared everywhere at once.
class DocumentMarks : public QObject
{
    Q_OBJECT

public:
    /// @param documents not owned
    explicit DocumentMarks(const OpenDocuments* documents, QObject* parent = nullptr)
        : QObject(parent)
        , m_documents(documents)
    {
    }

    /// Follows the marks of a document.
    void add(EditorWidget* widget);
    /// A document is being closed, and its breakpoints with it.
    void forgetOne() { ++m_revision; }

    /// Lines with a breakpoint, by absolute path.
    QMap<QString, QList<int>> breakpoints() const;
    /// A breakpoint has changed since the start.
    bool haveBreakpointsChanged() const { return m_haveChanged; }
    /// Changes whenever the result of breakpoints() may have changed.
    int breakpointRevision() const { return m_revision; }
    /// @return false without a start mark; *path and *line are then unchanged
    bool startPointer(QString* path, int* line) const;

    void clearBreakpoints();
    void clearStartPointers();
    void clearBookmarks();

signals:
    // In all documents.
    void breakpointsCleared();
    void bookmarksCleared();

private:
    void noteBreakpoints();

    const OpenDocuments* m_documents;
    bool m_haveChanged = false; ///< once set, it stays
    int m_revision = 0;
};

} // namespace nsModEditor
