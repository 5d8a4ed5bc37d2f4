#pragma once

#include "LateContent.h"

#include <QWidget>

class QCheckBox;
class QGridLayout;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QToolButton;

namespace nsModFindReplace {

/// The search bar: what to find and how, and in its second row what to put in its place. It does not search itself.
class FindReplaceActions;

class FindReplaceWidget : public QWidget
{
    Q_OBJECT

public:
    enum eMode_t { eModeFind = 0, eModeReplace = 1 };

    explicit FindReplaceWidget(QWidget* parent = nullptr);

    QString findString() const;
    QString replaceString() const;
    bool isCaseSensitive() const;
    /// Also false while the option is not offered.
    bool isWholeWords() const;
    /// Also false while the options are not offered.
    bool isRegExp() const;
    bool isInSelection() const;
    /// There is a text to find.
    bool isFindEnabled() const;
    eMode_t mode() const { return m_mode; }

    /// Opens the bar for a search: sets the mode and moves the focus to the text to find.
    /// @param text new text to find; empty keeps the one that stands there, and selects it
    void setInitString(QString text, eMode_t mode);
    /// Shows or hides the second row. Without setReplaceEnable() it stays hidden.
    void setMode(eMode_t mode);
    /// Offers the second row.
    void setReplaceEnable(bool enable);
    /// Offers the choice "Whole words only"; its state is kept meanwhile.
    void setWholeWordsEnable(bool enable);

    /// The tool tips of its buttons name the keys of these commands.
    void setCommands(const FindReplaceActions& commands);
    /// Offers regular expressions and the search in a selection; without, there are no results, either.
    void setExpressionsEnable(bool enable);
    /// Shows what the search has come to.
    void setResult(const QString& text, const QString& toolTip);

    /// The room without the options, which go into a row of their own where it is narrow.
    QSize minimumSizeHint() const override;

public slots:
    void toggleMode();

signals:
    /// The text to find, its replacement or an option has changed.
    void configChanged();
    void findNext();
    void findPrev();
    void replace();
    void replaceAll();
    /// The user wants to close the bar.
    void closeRequest();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private slots:
    void chkFindStringVld(QString text);

private:
    /// What the width of the window is enough for: all in a row, the options below, the buttons below, too.
    enum eSpace_t { eWide, eNarrow, eTight };

    void makeContent();
    void setupFindRow(QGridLayout* layout);
    void setupReplaceRow(QGridLayout* layout);
    void setupOptions();
    void setupTabOrder();
    int labelWidth() const;
    int fieldWidth() const;
    int buttonsWidth() const;
    void arrange();
    QToolButton* addToolButton(const char* name, const QString& icon, const QString& toolTip);
    QPushButton* addButton(QHBoxLayout* layout, const char* name, const QString& text, const QString& toolTip);
    QCheckBox* addCheckBox(const char* name, const QString& text, const QString& toolTip);
    QToolButton* addOption(const char* name, const QString& text, const QString& toolTip);
    void placeResult();
    bool enterPressed(const QKeyEvent* event);

    QToolButton* m_close = nullptr;
    QToolButton* m_toggle = nullptr;
    QLineEdit* m_find = nullptr;
    QLineEdit* m_replace = nullptr;
    QLabel* m_findLabel = nullptr;
    QLabel* m_replaceLabel = nullptr;
    QWidget* m_findButtons = nullptr;
    QWidget* m_replaceButtons = nullptr;
    QPushButton* m_nextButton = nullptr;
    QPushButton* m_prevButton = nullptr;
    QPushButton* m_replaceButton = nullptr;
    QPushButton* m_replaceAllButton = nullptr;
    QWidget* m_options = nullptr;   ///< how to search
    QHBoxLayout* m_boxes = nullptr; ///< its check boxes
    QCheckBox* m_caseSensitive = nullptr;
    QCheckBox* m_wholeWords = nullptr;
    QToolButton* m_regExp = nullptr;
    QToolButton* m_inSelection = nullptr;
    QLabel* m_result = nullptr;      ///< at the right in the text to find
    QLabel* m_resultBelow = nullptr; ///< the same where that is too narrow
    eMode_t m_mode = eModeFind;
    eSpace_t m_space = eWide;
    bool m_replaceEn = true;
    bool m_wholeWordsEn = true;
    LateContent m_content;
};

} // namespace nsModFindReplace
