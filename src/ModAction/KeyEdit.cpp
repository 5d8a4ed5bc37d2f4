#include "KeyEdit.h"

#include <QKeyEvent>

namespace nsModAction {

namespace {

bool isLeaving(const QKeyEvent* event)
{
    const bool isPlain = (event->modifiers() & ~Qt::ShiftModifier) == 0;
    return isPlain &&
           (event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab || event->key() == Qt::Key_Escape);
}

bool isModifier(int key)
{
    return key == Qt::Key_Control || key == Qt::Key_Shift || key == Qt::Key_Alt || key == Qt::Key_Meta ||
           key == Qt::Key_AltGr || key == Qt::Key_unknown || key == 0;
}

/// A letter alone belongs to the text that is written, and so do the keys that move in it.
bool isForCommands(const QKeyEvent* event)
{
    const bool isFunction = event->key() >= Qt::Key_F1 && event->key() <= Qt::Key_F35;
    return isFunction || (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
}

} // namespace

KeyEdit::KeyEdit(QWidget* parent)
    : QLineEdit(parent)
{
    setReadOnly(true);
    setPlaceholderText(tr("Press the keys"));
}

void KeyEdit::setKeys(const QList<QKeySequence>& keys)
{
    setText(QKeySequence::listToString(keys, QKeySequence::NativeText));
}

bool KeyEdit::event(QEvent* event)
{
    // Otherwise the command that has the keys now would run.
    if (event->type() == QEvent::ShortcutOverride && !isLeaving(static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    return QLineEdit::event(event);
}

void KeyEdit::keyPressEvent(QKeyEvent* event)
{
    if (isLeaving(event)) {
        event->ignore();
        return;
    }
    event->accept();
    const bool removes = event->key() == Qt::Key_Backspace || event->key() == Qt::Key_Delete;
    if (removes && event->modifiers() == Qt::NoModifier)
        emit keysPressed(QKeySequence());
    else if (!isModifier(event->key()) && isForCommands(event))
        emit keysPressed(QKeySequence(int(event->modifiers() & ~Qt::KeypadModifier) | event->key()));
}

} // namespace nsModAction
