#pragma once

#include <QList>
#include <QObject>

class QAction;

namespace nsModSymbols {

/// The completion of words in the menu "Edit": the command, and whether the list comes by itself.
class CompletionActions : public QObject
{
    Q_OBJECT

public:
    explicit CompletionActions(QObject* parent);

    QList<QAction*> menuActions() const;
    bool isOn() const;
    void setOn(bool on);
    /// Is there a document to complete words in?
    void setDocument(bool isDocument);

signals:
    void completionRequested();
    /// The command has other keys now.
    void keysChanged();

private:
    void applyKey();

    QAction* m_complete;
    QAction* m_on;
};

} // namespace nsModSymbols
