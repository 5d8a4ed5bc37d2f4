#pragma once

#include "SourceSearch.h"
#include "SourceSearchPanel.h"

#include <QObject>
#include <QPointer>

class ModGuiPluginIf;
class ModSourcesPluginIf;

namespace nsModEditor {

class DocumentCommands;
class EditorServices;
class EditorWidget;
class OpenDocuments;

/// Finds and replaces in all sources of the project and all open documents, with a panel in the lower dock.
class SourceFinder : public QObject
{
    Q_OBJECT

public:
    /// None of them owned.
    struct sParts_t
    {
        const OpenDocuments* documents;
        EditorServices* services;
        DocumentCommands* commands;
        ModGuiPluginIf* gui;
        const ModSourcesPluginIf* sources;
    };

    explicit SourceFinder(const sParts_t& parts, QObject* parent = nullptr);
    ~SourceFinder() override;

    /// Brings the panel to the front, with the selected text as the one to find.
    void open();
    /// The panel goes out of the window; nothing is searched any more.
    void close();
    /// Nothing that was found is there any more.
    void clear();

private:
    void find();
    void showFound(const QString& path, const QVector<sFoundLine_t>& lines);
    void showEnd(bool complete);
    void goTo(const sListedHit_t& hit);
    void replace();
    int replaceIn(EditorWidget* widget, const QVector<sListedHit_t>& hits, int* left) const;

    sParts_t m_parts;
    SourceSearch* m_search;
    QPointer<SourceSearchPanel> m_panel;
    int m_files = 0; ///< with hits
    int m_failed = 0;
};

} // namespace nsModEditor
