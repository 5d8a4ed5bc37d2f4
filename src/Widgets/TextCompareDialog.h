#pragma once

#include "LineDiff.h"

#include <QDialog>

class QDialogButtonBox;
class QLabel;
class QPushButton;
class TextCompareSide;

/// Two texts side by side, with their differences marked; they scroll together.
///
/// For reading: text can be selected and copied, and nothing is changed. Further buttons of the caller end the dialog
/// with a result of their own. Of very long texts the equal lines far from a difference are folded away, and no more
/// than maxRows rows are shown.
class TextCompareDialog : public QDialog
{
    Q_OBJECT

public:
    static const int maxRows = 100000;

    explicit TextCompareDialog(QWidget* parent = nullptr);

    /// @param leftTitle what the left text is, plain text, e.g. "In the editor"
    /// @param left lines separated by line feeds
    void setTexts(const QString& leftTitle, const QString& left, const QString& rightTitle, const QString& right);
    /// Appends a button that ends the dialog. Close, Esc and the window's own button end it with QDialog::Rejected (0).
    /// @param result what exec() returns, other than 0
    QPushButton* addButton(const QString& text, const QString& toolTip, int result);

    int differenceCount() const { return m_hunks.size(); }
    /// The difference that the user has gone to, counted from 0; -1 for none.
    int currentDifference() const { return m_current; }
    TextCompareSide* leftSide() const { return m_left; }
    TextCompareSide* rightSide() const { return m_right; }

public slots:
    void goToNext();
    void goToPrevious();

private:
    /// The rows of one difference.
    struct sPlace_t
    {
        int row;
        int count;
    };

    TextCompareSide* newSide(const QString& name, QLabel** title);
    void connectSides();
    void addNavigation();
    void fill(const QStringList& left, const QStringList& right);
    void goTo(int difference);
    void updateState();

    QLabel* m_leftTitle = nullptr;
    QLabel* m_rightTitle = nullptr;
    TextCompareSide* m_left;
    TextCompareSide* m_right;
    QLabel* m_state = nullptr;
    QPushButton* m_previous = nullptr;
    QPushButton* m_next = nullptr;
    QDialogButtonBox* m_buttons = nullptr;
    QVector<LineDiff::sHunk_t> m_hunks;
    QVector<sPlace_t> m_places; ///< of the differences that are shown
    int m_current = -1;
};
