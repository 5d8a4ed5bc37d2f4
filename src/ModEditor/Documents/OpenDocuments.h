#pragma once

#include "ModEditorPluginIf.h"
#include "PluginList.h"

#include <QList>
#include <QStringList>
#include <Qt>

class ModGuiPluginIf;
class QSplitter;
class QWidget;

namespace nsModEditor {

class EditorWidget;

/// The documents that are open, and which of them the user works in. Whoever asks a question looks here afterwards
/// whether its document is still open.
class OpenDocuments
{
public:
    /// @param gui reads the hook of the window, which has the pages; may be without one
    explicit OpenDocuments(const ModGuiPluginIf* gui)
        : m_gui(gui)
    {
    }

    /// In the order of their creation. Not owned.
    const QList<EditorWidget*>& all() const { return m_widgets; }
    bool isEmpty() const { return m_widgets.isEmpty(); }
    /// @param widget may be one that is deleted already, or null
    bool contains(EditorWidget* widget) const { return m_widgets.contains(widget); }
    void add(EditorWidget* widget) { m_widgets.append(widget); }
    /// The document is about to be deleted.
    void remove(EditorWidget* widget);
    /// Who is told of the documents.
    PluginList<ModEditorPluginIfText>& watchers() { return m_watchers; }
    /// The document has its text.
    void reportOpened(EditorWidget* widget) const;
    /// @param widget null for none
    void reportCurrent(EditorWidget* widget);

    /// The document on the current page; null if there is none.
    EditorWidget* current() const;
    /// The first document of this path; null if there is none.
    EditorWidget* of(const QString& path) const;
    /// Paths of the documents that have one, in the order of their pages.
    QStringList pathsByPage() const;
    /// Makes the page of the document the current one.
    void show(EditorWidget* widget) const;
    /// See ModGuiHookIf::splitPage(). Null without a window.
    QSplitter* splitPage(EditorWidget* widget, QWidget* second, Qt::Orientation orientation) const;
    /// Gives the focus to the current document, after a command of the user.
    void focusCurrent() const;

private:
    const ModGuiPluginIf* m_gui; ///< not owned
    QList<EditorWidget*> m_widgets;
    PluginList<ModEditorPluginIfText> m_watchers;
    EditorWidget* m_reportedCurrent = nullptr; ///< may be deleted already
};

} // namespace nsModEditor
