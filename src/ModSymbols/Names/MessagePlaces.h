#pragma once

#include "TextPlace.h"

#include <QSet>
#include <QString>
#include <QVector>

class ModMsgPluginIf;

namespace nsModEditor {
class EditorDocument;
}

namespace nsModSymbols {

/// The errors and warnings of the last run at their places in the documents, and the walk from one to the next.
class MessagePlaces
{
public:
    /// Reads the hook of the messages at each call; it may be missing. Not owned.
    explicit MessagePlaces(const ModMsgPluginIf* msg)
        : m_msg(msg)
    {
    }

    /// Takes the messages of the run that has ended.
    void take();
    void clear();
    /// Marks the places of a document.
    void mark(nsModEditor::EditorDocument* document);
    void forget(const nsModEditor::EditorDocument* document) { m_marked.remove(document); }

    bool isEmpty() const { return m_messages.isEmpty(); }
    /// Goes to the next message, from the last one to the first. @param step 1 or -1
    /// @return where it is in the file on the disk; null if there is none
    sTextPlace walk(int step);
    /// Where the message that walk() has gone to is in its document now. @return null if it is not marked there
    sTextPlace placeIn(const nsModEditor::EditorDocument* document) const;
    QString currentText() const;
    /// "3 of 17"
    QString position() const;

private:
    struct sMessage
    {
        int grade;
        QString text;
        QString path;
        int line;
        int row; ///< in the view
    };

    const ModMsgPluginIf* m_msg;
    QVector<sMessage> m_messages; ///< in the order of the view
    int m_current = -1;
    QSet<const nsModEditor::EditorDocument*> m_marked;
};

} // namespace nsModSymbols
