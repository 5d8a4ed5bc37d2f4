#pragma once

#include <QPushButton>

/// A button that looks like a link in a text: for steps that lead elsewhere. Return presses it, as Space does.
/// Where its text has no room, a part in the middle is left out.
class MyLinkButton : public QPushButton
{
    Q_OBJECT

public:
    explicit MyLinkButton(const QString& text, QWidget* parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};
