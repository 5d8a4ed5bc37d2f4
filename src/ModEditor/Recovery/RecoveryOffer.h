#pragma once

#include <QList>
#include <QObject>
#include <QPointer>

class ModGuiPluginIf;
class MyNoticeBar;
class QAction;
class RecoveryStore;

namespace nsModEditor {

class DocumentCommands;
class DocumentKeeper;
class DocumentPages;
class EditorServices;
class OpenDocuments;

/// Shows the texts that were kept, by a bar after a start and by an action at any time, to compare and restore them.
class RecoveryOffer : public QObject
{
    Q_OBJECT

public:
    struct sParts_t
    {
        OpenDocuments* documents;
        EditorServices* services;
        DocumentKeeper* keeper;
        DocumentCommands* commands;
        DocumentPages* pages;
    };

    /// Reads what the keeper has; writes documents through commands and pages. None of them is owned.
    /// @param gui whose hook shows the bar
    RecoveryOffer(ModGuiPluginIf* gui, const sParts_t& parts, QObject* parent = nullptr);

    /// The action and a separator behind it. Enabled at any time, unlike those of the documents.
    QList<QAction*> menuActions() const { return {m_action, m_separator}; }
    /// Shows the bar if texts were kept that the user does not know of.
    void offer();
    /// The bar comes to the front of its area again if it is there.
    void showNotice();
    void closeNotice();

private:
    RecoveryStore* store() const;
    void showDialog();
    void restoreText(const QString& id);
    bool compareText(const QString& id, bool canRestore);

    ModGuiPluginIf* m_gui; ///< not owned
    sParts_t m_parts;
    QAction* m_action;
    QAction* m_separator;
    QPointer<MyNoticeBar> m_notice; ///< after a start that found texts, until its user closes it
};

} // namespace nsModEditor
