#pragma once

#include "EditorActionsLines.h"
#include "ModActionHookIf.h"

#include <QObject>

#include <memory>

class QMenu;

namespace nsModEditor {

class EditorWidget;
class OpenDocuments;

/// The commands for lines and the ways through the documents, with their places in the menus.
class TextActions : public QObject
{
    Q_OBJECT

public:
    /// @param documents not owned
    explicit TextActions(const OpenDocuments* documents, QObject* parent = nullptr);
    ~TextActions() override;

    QList<QAction*> menuActions(ModActionHookIf::eActionClass_t actionClass) const;
    /// Gives the shortcuts to a document.
    void addTo(EditorWidget* widget);
    /// @param current a document is current @param project a project is open
    void setEnabled(bool current, bool project);
    /// Goes to the bookmark after or before the cursor; from the last one of a document on to the next document.
    void goToBookmark(bool backward);

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void findInSources();

private:
    void handle(EditorActionsLines::eAction_t action);

    const OpenDocuments* m_documents;
    EditorActionsLines* m_actions;
    std::unique_ptr<QMenu> m_lineMenu;
    std::unique_ptr<QMenu> m_foldMenu;
};

} // namespace nsModEditor
