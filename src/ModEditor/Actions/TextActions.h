#pragma once

#include "EditorActionsLines.h"
#include "EditorActionsMargin.h"
#include "ModActionHookIf.h"
#include "SourceFinder.h"
#include "SplitViews.h"

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
    /// @param parts what the search in all sources needs
    explicit TextActions(const SourceFinder::sParts_t& parts, QObject* parent = nullptr);
    ~TextActions() override;

    QList<QAction*> menuActions(ModActionHookIf::eActionClass_t actionClass) const;
    /// Gives the shortcuts to a document.
    void addTo(EditorWidget* widget);
    /// @param current a document is current @param project a project is open
    void setEnabled(bool current, bool project);
    /// Goes to the bookmark after or before the cursor; from the last one of a document on to the next document.
    void goToBookmark(bool backward);

    SourceFinder* sourceFinder() { return &m_sourceFinder; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void handle(EditorActionsLines::eAction_t action);
    void handleMargin(EditorActionsMargin::eAction_t action);
    bool handleViews(EditorActionsLines::eAction_t action, EditorWidget* widget);
    void enableViews();

    const OpenDocuments* m_documents;
    SplitViews m_splitViews;
    SourceFinder m_sourceFinder;
    EditorActionsLines* m_actions;
    EditorActionsMargin* m_marginActions;
    std::unique_ptr<QMenu> m_lineMenu;
    std::unique_ptr<QMenu> m_foldMenu;
    std::unique_ptr<QMenu> m_viewMenu;
};

} // namespace nsModEditor
