#pragma once

#include <QFrame>

class QHBoxLayout;
class QLabel;
class QPushButton;

/// A strip that reports a state and offers actions for it without opening a dialog: icon, text, buttons and a button
/// that closes it.
///
/// The bar stays until it is closed or deleted; it never takes the focus on its own. The bar accepts keys that none of
/// its controls handles, so that they are not typed into an editor that contains the bar.
class MyNoticeBar : public QFrame
{
    Q_OBJECT

public:
    enum eGrade_t { eGradeInfo = 0, eGradeWarning = 1, eGradeError = 2 };

    /// @param text plain text, wrapped where the bar is narrow
    MyNoticeBar(eGrade_t grade, const QString& text, QWidget* parent = nullptr);

    eGrade_t grade() const { return m_grade; }
    void setGrade(eGrade_t grade);
    QString text() const;
    void setText(const QString& text);

    /// Appends a button. The bar owns it. A click does not close the bar: that is up to the connected slot.
    /// @param text may hold a mnemonic
    QPushButton* addButton(const QString& text, const QString& toolTip);
    /// The first button that can take the focus; the one that closes the bar if there is no other.
    QWidget* firstControl() const;

    /// Ends the bar as if it had been closed, without the signal: hidden at once, deleted later. The focus returns to
    /// the widget that contains the bar.
    void dismiss();

signals:
    /// The user has closed the bar, by its button or by Esc. The bar is hidden already and deletes itself.
    void closed();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private slots:
    void closeByUser();

private:
    QList<QWidget*> controls() const;

    void showIcon();

    eGrade_t m_grade = eGradeInfo;
    QLabel* m_icon;
    QLabel* m_label;
    QHBoxLayout* m_buttons;
    QPushButton* m_close;
};
