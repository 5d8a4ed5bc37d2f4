#pragma once

#include <QKeySequence>
#include <QLineEdit>

namespace nsModAction {

/// A field that takes the keys that are pressed in it. Keys that a text needs are not taken; Backspace removes the
/// keys, Tab and Esc leave the field as in any other.
class KeyEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit KeyEdit(QWidget* parent = nullptr);

    /// Shows keys; emits nothing.
    void setKeys(const QList<QKeySequence>& keys);

signals:
    /// The user has pressed keys, or removed them: then the sequence is empty.
    void keysPressed(const QKeySequence& keys);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace nsModAction
