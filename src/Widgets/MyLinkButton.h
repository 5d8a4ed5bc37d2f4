#pragma once

#include "MyTextButton.h"

/// A button that looks like a link in a text: for steps that lead elsewhere. Return presses it, as Space does.
class MyLinkButton : public MyTextButton
{
    Q_OBJECT

public:
    explicit MyLinkButton(const QString& text, QWidget* parent = nullptr);

protected:
    int leastWidth() const override;
    void keyPressEvent(QKeyEvent* event) override;
};
