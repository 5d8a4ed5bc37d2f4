#include "TextCompletion.h"

#include <QCompleter>
#include <QPlainTextEdit>
#include <QStringListModel>

namespace nsModEditor {

TextCompletion::TextCompletion(QPlainTextEdit* edit)
    : QObject(edit)
    , m_edit(edit)
    , m_completer(new QCompleter(edit))
{
    m_completer->setWidget(edit);
    m_completer->setCaseSensitivity(Qt::CaseSensitive);
    m_completer->setWrapAround(false);
    m_completer->setCompletionMode(QCompleter::PopupCompletion);
    connect(m_completer, SIGNAL(activated(QString)), this, SLOT(insert(QString)));
}

void TextCompletion::setWords(QStringListModel* words)
{
    m_completer->setModel(words);
}

void TextCompletion::setItemCount(int count)
{
    m_completer->setMaxVisibleItems(qMax(count, 1));
}

void TextCompletion::insert(const QString& completion)
{
    if (m_edit->isReadOnly())
        return;
    QTextCursor cursor = m_edit->textCursor();
    cursor.movePosition(QTextCursor::Left);
    cursor.movePosition(QTextCursor::EndOfWord);
    cursor.insertText(completion.mid(m_completer->completionPrefix().length()));
    m_edit->setTextCursor(cursor);
}

} // namespace nsModEditor
