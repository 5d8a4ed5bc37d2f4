#include "CompletionActions.h"

#include <QAction>
#include <QKeySequence>

namespace nsModSymbols {

CompletionActions::CompletionActions(QObject* parent)
    : QObject(parent)
    , m_complete(new QAction(tr("Complete word"), this))
    , m_on(new QAction(tr("Completion while typing"), this))
{
    m_complete->setToolTip(tr("Shows the words that can stand at the cursor"));
    m_on->setToolTip(tr("The list of words comes by itself while you type, and by Ctrl and the space bar"));
    m_on->setCheckable(true);
    connect(m_complete, &QAction::triggered, this, &CompletionActions::completionRequested);
    connect(m_on, &QAction::toggled, this, &CompletionActions::applyKey);
    setDocument(false);
}

QList<QAction*> CompletionActions::menuActions() const
{
    return {m_complete, m_on};
}

bool CompletionActions::isOn() const
{
    return m_on->isChecked();
}

void CompletionActions::setOn(bool on)
{
    m_on->setChecked(on);
}

void CompletionActions::setDocument(bool isDocument)
{
    m_complete->setEnabled(isDocument);
}

/// Without the completion, the key is one that means nothing to the program.
void CompletionActions::applyKey()
{
    m_complete->setShortcut(isOn() ? QKeySequence(Qt::CTRL | Qt::Key_Space) : QKeySequence());
    emit keysChanged();
}

} // namespace nsModSymbols
