#include "FindReplaceWidget.h"

#include "FindReplaceActions.h"

#include "ButtonCommand.h"
#include "SchemeIcons.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

namespace nsModFindReplace {

namespace {

const QString iconClose = QStringLiteral(":/ModFindReplace/img/widget/closeWidget.png");
const QString iconExpand = QStringLiteral(":/ModFindReplace/img/widget/expand.png");
const QString iconCollapse = QStringLiteral(":/ModFindReplace/img/widget/collapse.png");

constexpr int gap = 8;           ///< the grid of the interface
constexpr int smallestEdit = 96; ///< width of the text fields in a narrow window

enum eColumn_t { columnClose, columnToggle, columnLabel, columnEdit, columnButtons, columnOptions, columnCount };
/// A row that has nothing takes no room.
enum eRow_t { rowFind, rowFindButtons, rowReplace, rowReplaceButtons, rowOptions };

} // namespace

FindReplaceWidget::FindReplaceWidget(QWidget* parent)
    : QWidget(parent)
    , m_content(this, [this] { makeContent(); })
{
    setObjectName(QStringLiteral("findReplaceWidget"));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void FindReplaceWidget::makeContent()
{
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(gap / 2, gap / 2, gap, gap / 2);
    layout->setHorizontalSpacing(gap);
    layout->setVerticalSpacing(gap / 2);
    setupFindRow(layout);
    setupReplaceRow(layout);
    setupOptions();
    layout->setColumnStretch(columnEdit, 1);
    arrange();
    // Fixed width, so that the fields do not move when the second row is shown or hidden.
    layout->setColumnMinimumWidth(columnLabel, labelWidth());
    setupTabOrder();
    setFocusProxy(m_find);
    setMode(eModeFind);
    chkFindStringVld(QString());
}

void FindReplaceWidget::setupFindRow(QGridLayout* layout)
{
    m_close = addToolButton("buttonClose", iconClose, tr("Close the search bar (Escape)"));
    m_toggle = addToolButton("buttonToggleMode", iconExpand, QString());
    m_findLabel = new QLabel(tr("Find:"), this);
    m_find = new QLineEdit(this);
    m_find->setObjectName(QStringLiteral("editFind"));
    m_find->setClearButtonEnabled(true);
    m_find->setMinimumWidth(smallestEdit);
    m_find->setToolTip(tr("Text to find. Enter finds the next hit, Shift and Enter the previous one."));
    m_findLabel->setBuddy(m_find);

    m_findButtons = new QWidget(this);
    auto* buttons = new QHBoxLayout(m_findButtons);
    buttons->setContentsMargins(0, 0, 0, 0);
    buttons->setSpacing(gap);
    m_nextButton = addButton(buttons, "buttonNext", tr("&Next"), tr("Find the next hit"));
    m_prevButton = addButton(buttons, "buttonPrevious", tr("&Previous"), tr("Find the previous hit"));
    buttons->addStretch();

    layout->addWidget(m_close, rowFind, columnClose);
    layout->addWidget(m_toggle, rowFind, columnToggle);
    layout->addWidget(m_findLabel, rowFind, columnLabel);
    layout->addWidget(m_find, rowFind, columnEdit);

    connect(m_find, &QLineEdit::textChanged, this, &FindReplaceWidget::chkFindStringVld);
    connect(m_nextButton, &QPushButton::clicked, this, &FindReplaceWidget::findNext);
    connect(m_prevButton, &QPushButton::clicked, this, &FindReplaceWidget::findPrev);
    connect(m_toggle, &QToolButton::clicked, this, &FindReplaceWidget::toggleMode);
    connect(m_close, &QToolButton::clicked, this, &FindReplaceWidget::closeRequest);
}

void FindReplaceWidget::setupReplaceRow(QGridLayout* layout)
{
    m_replaceLabel = new QLabel(tr("Replace:"), this);
    m_replace = new QLineEdit(this);
    m_replace->setObjectName(QStringLiteral("editReplace"));
    m_replace->setClearButtonEnabled(true);
    m_replace->setMinimumWidth(smallestEdit);
    m_replace->setToolTip(tr("Text that takes the place of a hit. Enter replaces the selected hit."));
    m_replaceLabel->setBuddy(m_replace);

    m_replaceButtons = new QWidget(this);
    auto* buttons = new QHBoxLayout(m_replaceButtons);
    buttons->setContentsMargins(0, 0, 0, 0);
    buttons->setSpacing(gap);
    m_replaceButton =
        addButton(buttons, "buttonReplace", tr("&Replace"), tr("Replace the selected hit and find the next one"));
    m_replaceAllButton = addButton(buttons, "buttonReplaceAll", tr("Replace &all"), tr("Replace all hits"));
    buttons->addStretch();

    layout->addWidget(m_replaceLabel, rowReplace, columnLabel);
    layout->addWidget(m_replace, rowReplace, columnEdit);

    connect(m_replace, &QLineEdit::textChanged, this, &FindReplaceWidget::configChanged);
    connect(m_replaceButton, &QPushButton::clicked, this, &FindReplaceWidget::replace);
    connect(m_replaceAllButton, &QPushButton::clicked, this, &FindReplaceWidget::replaceAll);
}

void FindReplaceWidget::setupOptions()
{
    m_options = new QWidget(this);
    auto* layout = new QBoxLayout(QBoxLayout::LeftToRight, m_options);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(gap);
    m_caseSensitive = addCheckBox("checkCaseSensitive", tr("Case sensitive"), tr("Tell upper from lower case"));
    m_wholeWords = addCheckBox("checkWholeWords", tr("Whole words only"), tr("Leave out hits inside of a longer word"));
    m_regExp = addOption("buttonRegExp", QStringLiteral(".*"),
                         tr("Regular expression; in the replacement, \\1 is what its first group has found"));
    m_inSelection = addOption("buttonInSelection", QStringLiteral("[ ]"), tr("Only in what is selected now"));
    // In a narrow window, one row is above the other.
    m_boxes = new QHBoxLayout;
    m_boxes->setSpacing(gap);
    m_boxes->addWidget(m_caseSensitive);
    m_boxes->addWidget(m_wholeWords);
    m_boxes->addStretch();
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(gap / 2);
    buttons->addWidget(m_regExp);
    buttons->addWidget(m_inSelection);
    m_resultBelow = new QLabel(m_options);
    m_resultBelow->setEnabled(false);
    buttons->addWidget(m_resultBelow);
    buttons->addStretch();
    layout->addLayout(m_boxes);
    layout->addLayout(buttons);
    m_result = new QLabel(m_find);
    m_result->setObjectName(QStringLiteral("labelResult"));
    m_result->setEnabled(false);
    connect(m_regExp, &QToolButton::toggled, this, &FindReplaceWidget::configChanged);
    connect(m_inSelection, &QToolButton::toggled, this, &FindReplaceWidget::configChanged);
    connect(m_caseSensitive, &QCheckBox::toggled, this, &FindReplaceWidget::configChanged);
    connect(m_wholeWords, &QCheckBox::toggled, this, &FindReplaceWidget::configChanged);
}

int FindReplaceWidget::labelWidth() const
{
    return qMax(m_findLabel->sizeHint().width(), m_replaceLabel->sizeHint().width());
}

/// Of the row with a text field and nothing behind it.
int FindReplaceWidget::fieldWidth() const
{
    const QMargins margins = layout()->contentsMargins();
    return m_close->sizeHint().width() + m_toggle->sizeHint().width() + labelWidth() + smallestEdit + columnEdit * gap +
           margins.left() + margins.right();
}

int FindReplaceWidget::buttonsWidth() const
{
    return qMax(m_findButtons->sizeHint().width(), m_replaceButtons->sizeHint().width());
}

QSize FindReplaceWidget::minimumSizeHint() const
{
    if (!m_content.isThere())
        return QWidget::minimumSizeHint();
    const QMargins margins = layout()->contentsMargins();
    const int boxes = qMax(m_caseSensitive->sizeHint().width(), m_wholeWords->sizeHint().width());
    const int width = qMax(fieldWidth(), qMax(buttonsWidth(), boxes) + margins.left() + margins.right());
    return QSize(width, QWidget::minimumSizeHint().height());
}

void FindReplaceWidget::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (!m_content.isThere())
        return;
    placeResult();
    // The width that the options have in one row, in whichever way they stand now.
    int options = 0;
    for (const QWidget* part : {static_cast<QWidget*>(m_caseSensitive), static_cast<QWidget*>(m_wholeWords),
                                static_cast<QWidget*>(m_regExp), static_cast<QWidget*>(m_inSelection)})
        options += part->sizeHint().width() + gap;
    const int narrow = fieldWidth() + gap + buttonsWidth();
    const eSpace_t space = width() < narrow ? eTight : width() < narrow + 2 * gap + options ? eNarrow : eWide;
    const QMargins margins = layout()->contentsMargins();
    const int boxes = m_caseSensitive->sizeHint().width() + gap + m_wholeWords->sizeHint().width();
    const bool areBeside = width() >= boxes + margins.left() + margins.right();
    if (space == m_space && areBeside == (m_boxes->direction() == QBoxLayout::LeftToRight))
        return;
    m_space = space;
    m_boxes->setDirection(areBeside ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    arrange();
    updateGeometry();
}

/// In a narrow window the options stand below the fields, in a tight one the buttons do, too.
void FindReplaceWidget::arrange()
{
    auto* grid = static_cast<QGridLayout*>(layout());
    for (QWidget* part : {m_findButtons, m_replaceButtons, m_options})
        grid->removeWidget(part);
    const bool tight = m_space == eTight;
    static_cast<QBoxLayout*>(m_options->layout())
        ->setDirection(m_space == eWide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    if (tight) {
        grid->addWidget(m_findButtons, rowFindButtons, columnClose, 1, columnCount);
        grid->addWidget(m_replaceButtons, rowReplaceButtons, columnClose, 1, columnCount);
        grid->addWidget(m_options, rowOptions, columnClose, 1, columnCount);
        return;
    }
    grid->addWidget(m_findButtons, rowFind, columnButtons);
    grid->addWidget(m_replaceButtons, rowReplace, columnButtons);
    if (m_space == eNarrow)
        grid->addWidget(m_options, rowOptions, columnEdit, 1, columnCount - columnEdit);
    else
        grid->addWidget(m_options, rowFind, columnOptions);
}

void FindReplaceWidget::setupTabOrder()
{
    const QList<QWidget*> order = {m_close,      m_find,          m_replace,          m_nextButton,
                                   m_prevButton, m_replaceButton, m_replaceAllButton, m_caseSensitive,
                                   m_wholeWords, m_regExp,        m_inSelection,      m_toggle};
    for (int i = 1; i < order.size(); ++i)
        setTabOrder(order.at(i - 1), order.at(i));
}

QToolButton* FindReplaceWidget::addToolButton(const char* name, const QString& icon, const QString& toolTip)
{
    auto* button = new QToolButton(this);
    button->setObjectName(QLatin1String(name));
    button->setAutoRaise(true);
    button->setIcon(SchemeIcons::of(icon));
    button->setIconSize(QSize(16, 16));
    button->setFocusPolicy(Qt::StrongFocus);
    button->setToolTip(toolTip);
    button->setAccessibleName(toolTip);
    return button;
}

QPushButton* FindReplaceWidget::addButton(QHBoxLayout* layout, const char* name, const QString& text,
                                          const QString& toolTip)
{
    auto* button = new QPushButton(text, this);
    button->setObjectName(QLatin1String(name));
    button->setToolTip(toolTip);
    layout->addWidget(button);
    return button;
}

QCheckBox* FindReplaceWidget::addCheckBox(const char* name, const QString& text, const QString& toolTip)
{
    auto* box = new QCheckBox(text, this);
    box->setObjectName(QLatin1String(name));
    box->setToolTip(toolTip);
    return box;
}

QToolButton* FindReplaceWidget::addOption(const char* name, const QString& text, const QString& toolTip)
{
    auto* button = new QToolButton(this);
    button->setObjectName(QLatin1String(name));
    button->setText(text);
    button->setCheckable(true);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setToolTip(toolTip);
    button->setAccessibleName(toolTip);
    return button;
}

QString FindReplaceWidget::findString() const
{
    return m_content.isThere() ? m_find->text() : QString();
}

QString FindReplaceWidget::replaceString() const
{
    return m_content.isThere() ? m_replace->text() : QString();
}

bool FindReplaceWidget::isCaseSensitive() const
{
    return m_content.isThere() && m_caseSensitive->isChecked();
}

bool FindReplaceWidget::isWholeWords() const
{
    return m_content.isThere() && m_wholeWordsEn && m_wholeWords->isChecked();
}

bool FindReplaceWidget::isRegExp() const
{
    return m_content.isThere() && m_regExp->isEnabledTo(this) && m_regExp->isChecked();
}

bool FindReplaceWidget::isInSelection() const
{
    return m_content.isThere() && m_inSelection->isEnabledTo(this) && m_inSelection->isChecked();
}

void FindReplaceWidget::setExpressionsEnable(bool enable)
{
    m_content.need();
    m_regExp->setEnabled(enable);
    m_inSelection->setEnabled(enable);
    // The selection is another one each time the bar opens.
    m_inSelection->setChecked(false);
    setResult(QString(), QString());
}

void FindReplaceWidget::setResult(const QString& text, const QString& toolTip)
{
    m_content.need();
    m_result->setText(text);
    m_result->setToolTip(toolTip);
    m_result->adjustSize();
    placeResult();
}

/// Beside the button that clears the field, where the field has the room.
void FindReplaceWidget::placeResult()
{
    const int clearButton = m_find->height();
    const bool fits = m_find->width() > smallestEdit + clearButton + m_result->width();
    m_result->setVisible(fits && !m_result->text().isEmpty());
    m_resultBelow->setText(m_result->text());
    m_resultBelow->setToolTip(m_result->toolTip());
    m_resultBelow->setVisible(!fits && !m_result->text().isEmpty());
    m_find->setTextMargins(0, 0, m_result->isHidden() ? 0 : m_result->width() + gap / 2, 0);
    m_result->move(m_find->width() - clearButton - m_result->width(), (m_find->height() - m_result->height()) / 2);
}

bool FindReplaceWidget::isFindEnabled() const
{
    return !findString().isEmpty();
}

void FindReplaceWidget::setInitString(QString text, eMode_t mode)
{
    setMode(mode);
    m_find->setFocus();
    // The field has one line, so a text of several lines is not taken over.
    if (!text.contains('\n') && !text.contains(QChar::ParagraphSeparator) && !text.isEmpty())
        m_find->setText(text);
    // Selected, so that typing replaces it.
    m_find->selectAll();
    emit configChanged();
}

void FindReplaceWidget::setMode(eMode_t mode)
{
    m_content.need();
    m_mode = m_replaceEn ? mode : eModeFind;
    const bool shown = m_mode == eModeReplace;
    // If the focus is in the row that is hidden, it moves to another field of the bar.
    if (!shown && (m_replace->hasFocus() || m_replaceButton->hasFocus() || m_replaceAllButton->hasFocus()))
        m_find->setFocus();
    for (QWidget* part : {static_cast<QWidget*>(m_replaceLabel), static_cast<QWidget*>(m_replace), m_replaceButtons})
        part->setVisible(shown);
    m_toggle->setIcon(SchemeIcons::of(shown ? iconCollapse : iconExpand));
    m_toggle->setToolTip(shown ? tr("Hide the replacement") : tr("Show the replacement"));
    m_toggle->setAccessibleName(m_toggle->toolTip());
}

void FindReplaceWidget::setReplaceEnable(bool enable)
{
    m_content.need();
    m_replaceEn = enable;
    m_toggle->setEnabled(enable);
    setMode(m_mode);
}

void FindReplaceWidget::setWholeWordsEnable(bool enable)
{
    m_content.need();
    m_wholeWordsEn = enable;
    m_wholeWords->setEnabled(enable);
}

void FindReplaceWidget::setCommands(const FindReplaceActions& commands)
{
    m_content.need();
    ButtonCommand::set(m_nextButton, commands.command(FindReplaceActions::eActionFindNext));
    ButtonCommand::set(m_prevButton, commands.command(FindReplaceActions::eActionFindPrev));
    ButtonCommand::set(m_toggle, commands.command(FindReplaceActions::eActionReplace));
}

void FindReplaceWidget::toggleMode()
{
    setMode(m_mode == eModeFind ? eModeReplace : eModeFind);
}

void FindReplaceWidget::chkFindStringVld(QString text)
{
    for (QPushButton* button : {m_nextButton, m_prevButton, m_replaceButton, m_replaceAllButton})
        button->setEnabled(!text.isEmpty());
    emit configChanged();
}

bool FindReplaceWidget::enterPressed(const QKeyEvent* event)
{
    if (!isFindEnabled())
        return false;
    if (m_replace->hasFocus())
        emit replace();
    else if (m_find->hasFocus() && (event->modifiers() & Qt::ShiftModifier) != 0)
        emit findPrev();
    else if (m_find->hasFocus())
        emit findNext();
    else
        return false;
    return true;
}

void FindReplaceWidget::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape)
        emit closeRequest();
    else if (!isEnter || !enterPressed(event))
        QWidget::keyPressEvent(event);
}

} // namespace nsModFindReplace
