#pragma once

#include <QPushButton>

/// A push button whose text gives way where there is no room for it: to a shorter one, or it loses its middle. What the
/// button is called stays text().
class MyTextButton : public QPushButton
{
    Q_OBJECT

public:
    explicit MyTextButton(const QString& text, QWidget* parent = nullptr);

    QSize minimumSizeHint() const override;

    /// @param text shown where there is no room for text(); empty: none
    void setShortText(const QString& text);
    /// What stands there at the present width, with its mnemonics.
    QString shownText() const;

protected:
    /// Pixels of the text below which the button does not shrink while it has no short text.
    virtual int leastWidth() const;
    void paintEvent(QPaintEvent* event) override;

private:
    int widthOf(const QString& text) const;

    QString m_shortText;
};
