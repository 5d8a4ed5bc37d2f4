#pragma once

#include "CompletionWords.h"

#include <QTreeView>

namespace nsModSymbols {

class CompletionModel;

/// The list of words beside the cursor. The focus stays in the document, which hands its keys over.
class CompletionPopup : public QTreeView
{
    Q_OBJECT

public:
    /// @param document owns the list
    explicit CompletionPopup(QWidget* document);

    /// @param anchor upper left corner of the word and its height, in coordinates of the screen
    void showWords(const QVector<sCompletion>& words, const QRect& anchor, int rowCount);
    /// The word that would be taken; empty if there is none.
    QString currentWord() const { return current().word; }
    sCompletion current() const;
    int count() const;
    /// Moves the choice. @return false for a key that means nothing to the list
    bool handleMove(int key);

signals:
    void chosen();

private:
    CompletionModel* m_model;
};

} // namespace nsModSymbols
