#pragma once

#include <QPushButton>

/// A button that looks like a link in a text: for steps that lead elsewhere. Return presses it, as Space does.
/// Where its text has no room, a shorter one takes its place, or a part in the middle is left out.
class MyLinkButton : public QPushButton
{
    Q_OBJECT

public:
    explicit MyLinkButton(const QString& text, QWidget* parent = nullptr);

    QSize minimumSizeHint() const override;

    /// @param text shown where there is no room for text(); empty: text() with an ellipsis
    void setShortText(const QString& text);
    /// What stands there at the present width, with its mnemonics.
    QString shownText() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    int widthOf(const QString& text) const;

    QString m_shortText;
};
