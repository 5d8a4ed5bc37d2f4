#include "TextCompareDialog.h"

#include "HelpRef.h"
#include "TextCompareSide.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>

namespace {

const int gap = 8;
const int foldContext = 100; ///< equal lines shown before and after a difference when others are folded
const int startWidth = 1100;
const int startHeight = 700;

/// Builds the rows of both sides.
class Rows
{
public:
    Rows(const QStringList& left, const QStringList& right)
        : m_leftLines(left)
        , m_rightLines(right)
    {
    }

    bool isFull() const { return leftRows.size() >= TextCompareDialog::maxRows; }
    int count() const { return leftRows.size(); }

    void addEqual(int left, int right, int lines)
    {
        for (int i = 0; i < lines && !isFull(); ++i)
            add(left + i, TextCompareSide::eRowEqual, right + i, TextCompareSide::eRowEqual);
    }

    /// Equal lines of long texts: those far from a difference are counted and not shown.
    void addFolded(int left, int right, int lines)
    {
        const int hidden = lines - 2 * foldContext;
        if (hidden <= 1) {
            addEqual(left, right, lines);
            return;
        }
        addEqual(left, right, foldContext);
        addNote(TextCompareDialog::tr("... %n equal line(s) ...", nullptr, hidden));
        addEqual(left + lines - foldContext, right + lines - foldContext, foldContext);
    }

    void addHunk(const LineDiff::sHunk_t& hunk)
    {
        for (int i = 0; i < qMax(hunk.leftCount, hunk.rightCount) && !isFull(); ++i) {
            if (i < hunk.leftCount && i < hunk.rightCount)
                add(hunk.left + i, TextCompareSide::eRowChanged, hunk.right + i, TextCompareSide::eRowChanged);
            else if (i < hunk.leftCount)
                add(hunk.left + i, TextCompareSide::eRowOnlyHere, -1, TextCompareSide::eRowMissing);
            else
                add(-1, TextCompareSide::eRowMissing, hunk.right + i, TextCompareSide::eRowOnlyHere);
        }
    }

    void addNote(const QString& text)
    {
        add(-1, TextCompareSide::eRowMissing, -1, TextCompareSide::eRowMissing);
        leftTexts.last() = text;
        rightTexts.last() = text;
    }

    QVector<TextCompareSide::sRow_t> leftRows;
    QVector<TextCompareSide::sRow_t> rightRows;
    QStringList leftTexts;
    QStringList rightTexts;

private:
    void add(int left, TextCompareSide::eRow_t leftKind, int right, TextCompareSide::eRow_t rightKind)
    {
        leftRows.append({left, leftKind});
        rightRows.append({right, rightKind});
        leftTexts.append(left >= 0 ? m_leftLines.at(left) : QString());
        rightTexts.append(right >= 0 ? m_rightLines.at(right) : QString());
    }

    const QStringList& m_leftLines;
    const QStringList& m_rightLines;
};

} // namespace

TextCompareDialog::TextCompareDialog(QWidget* parent)
    : QDialog(parent)
    , m_left(newSide(QStringLiteral("textCompareLeft"), &m_leftTitle))
    , m_right(newSide(QStringLiteral("textCompareRight"), &m_rightTitle))
{
    setObjectName(QStringLiteral("textCompareDialog"));
    setWindowTitle(tr("Compare texts"));
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(2 * gap, 2 * gap, 2 * gap, 2 * gap);
    layout->setSpacing(gap);
    layout->addWidget(m_leftTitle, 0, 0);
    layout->addWidget(m_rightTitle, 0, 1);
    layout->addWidget(m_left, 1, 0);
    layout->addWidget(m_right, 1, 1);
    layout->setRowStretch(1, 1);
    layout->setColumnStretch(0, 1);
    layout->setColumnStretch(1, 1);
    connectSides();
    addNavigation();
    resize(startWidth, startHeight);
    m_left->setFocus();
}

TextCompareSide* TextCompareDialog::newSide(const QString& name, QLabel** title)
{
    auto* side = new TextCompareSide(this);
    side->setObjectName(name);
    *title = new QLabel(this);
    (*title)->setObjectName(name + QStringLiteral("Title"));
    (*title)->setTextFormat(Qt::PlainText);
    (*title)->setBuddy(side);
    (*title)->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    return side;
}

void TextCompareDialog::connectSides()
{
    const auto join = [](QScrollBar* first, QScrollBar* second) {
        connect(first, &QScrollBar::valueChanged, second, &QScrollBar::setValue);
        connect(second, &QScrollBar::valueChanged, first, &QScrollBar::setValue);
    };
    join(m_left->verticalScrollBar(), m_right->verticalScrollBar());
    // The sides can differ in width: one that cannot scroll as far must not limit the other one.
    const auto follow = [](QScrollBar* leader, QScrollBar* follower) {
        connect(leader, &QScrollBar::valueChanged, follower, [follower](int value) {
            if (value <= follower->maximum())
                follower->setValue(value);
        });
    };
    follow(m_left->horizontalScrollBar(), m_right->horizontalScrollBar());
    follow(m_right->horizontalScrollBar(), m_left->horizontalScrollBar());
}

void TextCompareDialog::addNavigation()
{
    m_buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    HelpRef::set(this, QStringLiteral("pageId://recovery#compare"), m_buttons);
    m_previous = m_buttons->addButton(tr("&Previous difference"), QDialogButtonBox::ActionRole);
    m_previous->setObjectName(QStringLiteral("textComparePrevious"));
    m_previous->setToolTip(tr("Goes to the difference above (Alt+Up)"));
    m_next = m_buttons->addButton(tr("&Next difference"), QDialogButtonBox::ActionRole);
    m_next->setObjectName(QStringLiteral("textCompareNext"));
    m_next->setToolTip(tr("Goes to the difference below (Alt+Down)"));
    for (QAbstractButton* button : m_buttons->buttons())
        qobject_cast<QPushButton*>(button)->setAutoDefault(false);
    m_buttons->button(QDialogButtonBox::Close)->setToolTip(tr("Closes the comparison and changes nothing (Esc)"));
    // In addition to the mnemonics of the buttons, next to the arrow keys.
    new QShortcut(QKeySequence(QStringLiteral("Alt+Up")), this, SLOT(goToPrevious()));
    new QShortcut(QKeySequence(QStringLiteral("Alt+Down")), this, SLOT(goToNext()));
    connect(m_previous, &QPushButton::clicked, this, &TextCompareDialog::goToPrevious);
    connect(m_next, &QPushButton::clicked, this, &TextCompareDialog::goToNext);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    m_state = new QLabel(this);
    m_state->setObjectName(QStringLiteral("textCompareState"));
    auto* grid = static_cast<QGridLayout*>(layout());
    grid->addWidget(m_state, 2, 0, 1, 2);
    grid->addWidget(m_buttons, 3, 0, 1, 2);
}

QPushButton* TextCompareDialog::addButton(const QString& text, const QString& toolTip, int result)
{
    QPushButton* button = m_buttons->addButton(text, QDialogButtonBox::ActionRole);
    button->setToolTip(toolTip);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, result] { done(result); });
    return button;
}

void TextCompareDialog::setTexts(const QString& leftTitle, const QString& left, const QString& rightTitle,
                                 const QString& right)
{
    m_leftTitle->setText(leftTitle);
    m_leftTitle->setToolTip(leftTitle);
    m_left->setAccessibleName(leftTitle);
    m_rightTitle->setText(rightTitle);
    m_rightTitle->setToolTip(rightTitle);
    m_right->setAccessibleName(rightTitle);
    fill(left.split(QLatin1Char('\n')), right.split(QLatin1Char('\n')));
    m_current = -1;
    updateState();
    if (!m_places.isEmpty())
        goTo(0);
}

void TextCompareDialog::fill(const QStringList& left, const QStringList& right)
{
    m_hunks = LineDiff::compare(left, right);
    m_places.clear();
    Rows rows(left, right);
    const bool folded = qMax(left.size(), right.size()) > maxRows / 2;
    int leftLine = 0;
    int rightLine = 0;
    const auto addEqual = [&](int lines) {
        if (folded)
            rows.addFolded(leftLine, rightLine, lines);
        else
            rows.addEqual(leftLine, rightLine, lines);
    };
    for (const LineDiff::sHunk_t& hunk : qAsConst(m_hunks)) {
        addEqual(hunk.left - leftLine);
        if (rows.isFull())
            break;
        const int first = rows.count();
        rows.addHunk(hunk);
        m_places.append({first, rows.count() - first});
        leftLine = hunk.left + hunk.leftCount;
        rightLine = hunk.right + hunk.rightCount;
    }
    addEqual(left.size() - leftLine);
    if (rows.isFull())
        rows.addNote(tr("... the rest is not shown ..."));
    m_left->setRows(rows.leftRows, rows.leftTexts);
    m_right->setRows(rows.rightRows, rows.rightTexts);
}

void TextCompareDialog::goToNext()
{
    goTo(m_current + 1);
}

void TextCompareDialog::goToPrevious()
{
    goTo(m_current - 1);
}

void TextCompareDialog::goTo(int difference)
{
    if (difference < 0 || difference >= m_places.size())
        return;
    m_current = difference;
    const sPlace_t& place = m_places.at(difference);
    m_left->setCurrentRows(place.row, place.count);
    m_right->setCurrentRows(place.row, place.count);
    updateState();
}

void TextCompareDialog::updateState()
{
    if (m_hunks.isEmpty())
        m_state->setText(tr("The lines are equal."));
    else if (m_current < 0)
        m_state->setText(tr("Differences: %1").arg(m_hunks.size()));
    else
        m_state->setText(tr("Difference %1 of %2").arg(m_current + 1).arg(m_hunks.size()));
    m_previous->setEnabled(m_current > 0);
    m_next->setEnabled(m_current + 1 < m_places.size());
}
