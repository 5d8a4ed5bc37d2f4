#pragma once

#include <QPushButton>

/// A button that looks like a link in a text: for steps that lead elsewhere. Return presses it, as Space does.
class MyLinkButton : public QPushButton
{
    Q_OBJECT

public:
    explicit MyLinkButton(const QString& text, QWidget* parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent* event) override;
};
