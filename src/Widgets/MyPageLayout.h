#pragma once

#include <QVBoxLayout>

class MyFieldTitle;
class MySectionTitle;
class QGridLayout;
class QLabel;

/// The layout of a settings page: its title, a note, and sections with the labels of all fields in one column.
///
/// What is added is owned by the page, in reading order, which is the tab order. What does not fill the page is
/// followed by empty space.
///
///     auto* layout = new MyPageLayout(this, tr("Assembler configuration"));
///     layout->addSection(tr("Character set"));
///     layout->addField(tr("Default &character set:"), m_charset, tr("Character set of texts that name none"));
///     layout->addField(tr("&Tab width:"), m_tabWidth, tr("Width of a tab"), tr("characters"));
///     layout->addRow(m_wrapLines);
class MyPageLayout : public QVBoxLayout
{
    Q_OBJECT

public:
    MyPageLayout(QWidget* page, const QString& title);

    /// A heading; what is added next stands below it.
    MySectionTitle* addSection(const QString& title);
    /// A label and its field; the label's mnemonic leads to the field. Fields that want to grow take the width of the
    /// page.
    /// @param toolTip for label and field; empty leaves the field's own
    /// @param unit text after the field, such as "pixels"
    MyFieldTitle* addField(const QString& title, QWidget* field, const QString& toolTip = QString(),
                           const QString& unit = QString());
    /// A widget or layout that stands in the column of the fields, such as a check box with a text of its own.
    void addRow(QWidget* widget);
    void addRow(QLayout* row);
    /// A widget or layout as wide as the page, from its left edge.
    void addWide(QWidget* widget);
    void addWide(QLayout* row);
    /// The same with all the height that is left, for a list or a text.
    void addFill(QWidget* widget);
    void addFill(QLayout* row);
    /// An explanation in an unobtrusive style, wrapped.
    QLabel* addHint(const QString& text);

    /// Below the page's title: why the user cannot change settings here. An empty text hides it.
    void setNote(const QString& note);
    QString note() const;
    /// Enables what stands on the page. Fields that the page has disabled stay disabled.
    void setContentEnabled(bool enabled);
    /// For pages with settings of the project: where none is open the fields are disabled and the note says why.
    void setPrjConfigEnabled(bool enabled);

private:
    void endOfFill();

    QLabel* m_note = nullptr;
    QWidget* m_content = nullptr;
    QGridLayout* m_grid = nullptr;
    int m_row = 0;
    bool m_fills = false; ///< something on the page takes the height
};
