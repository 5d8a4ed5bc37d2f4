#include "EditorStatusBar.h"

#include "MyStatusBarTitle.h"

#include <QAction>
#include <QActionGroup>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QToolButton>

namespace nsModEditor {

namespace {

const int widthForTitles = 1280;   ///< pixels of the window
const int widthForPosition = 1000; ///< the same

/// Makes room for each of the texts.
void reserve(QLabel* label, const QStringList& texts)
{
    for (const QString& text : texts) {
        label->setText(text);
        label->setMinimumWidth(qMax(label->minimumWidth(), label->sizeHint().width()));
    }
    label->clear();
}

} // namespace

EditorStatusBar::EditorStatusBar(QWidget* parent)
    : QWidget(parent)
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 0, 8, 0);
    layout->setSpacing(8);
    m_fontSize =
        addPair(tr("Font size:"), tr("Font size of the document, changed with Ctrl and the wheel; Ctrl+0 resets it"),
                "editorStatusBarFontSize");
    layout->addSpacing(8);
    m_mode = addPair(tr("Mode:"), tr("What typing does to the text behind the cursor, changed with the Insert key"),
                     "editorStatusBarMode");
    layout->addSpacing(8);
    m_position = addPair(tr("Line:"), tr("Line and column of the cursor"), "editorStatusBarPosition");
    layout->addSpacing(8);
    addFormat();
    layout->addStretch(1);
    // The widgets after it must not move when a value changes.
    reserve(m_fontSize, {tr("%1 pt").arg(100)});
    reserve(m_mode, {tr("Insert"), tr("Overwrite")});
    reserve(m_position, {QStringLiteral("%1:%2").arg(99999).arg(999)});
    setOverwrite(false);
}

QLabel* EditorStatusBar::addPair(const QString& title, const QString& toolTip, const QString& name)
{
    auto* titleLabel = new MyStatusBarTitle(title, this);
    titleLabel->setToolTip(toolTip);
    m_titles.append(titleLabel);
    auto* value = new QLabel(this);
    value->setObjectName(name);
    value->setToolTip(toolTip);
    layout()->addWidget(titleLabel);
    layout()->addWidget(value);
    return value;
}

void EditorStatusBar::addFormat()
{
    const QString toolTip = tr("Encoding and line ends of the file; click to change line ends and byte order mark");
    auto* title = new MyStatusBarTitle(tr("File:"), this);
    title->setToolTip(toolTip);
    m_titles.append(title);
    m_format = new QToolButton(this);
    m_format->setObjectName(QStringLiteral("editorStatusBarFormat"));
    m_format->setToolTip(toolTip);
    m_format->setAccessibleName(tr("Format of the file"));
    m_format->setAutoRaise(true);
    m_format->setPopupMode(QToolButton::InstantPopup);
    m_format->setFocusPolicy(Qt::TabFocus);
    auto* menu = new QMenu(m_format);
    m_lineEnds = new QActionGroup(this);
    // With mixed line ends no entry is checked.
    m_lineEnds->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
    const QStringList names = {tr("LF (Unix)"), tr("CRLF (Windows)"), tr("CR")};
    for (int lineEnd = DocumentFormat::eLineEndLf; lineEnd <= DocumentFormat::eLineEndCr; ++lineEnd) {
        QAction* action = menu->addAction(names.at(lineEnd));
        action->setCheckable(true);
        action->setData(lineEnd);
        m_lineEnds->addAction(action);
    }
    menu->addSeparator();
    m_mark = menu->addAction(tr("Byte order mark"));
    m_mark->setCheckable(true);
    m_format->setMenu(menu);
    connect(m_lineEnds, &QActionGroup::triggered, this, &EditorStatusBar::selectLineEnd);
    connect(m_mark, &QAction::triggered, this, &EditorStatusBar::markSelected);
    layout()->addWidget(title);
    layout()->addWidget(m_format);
    clearFormat();
}

void EditorStatusBar::selectLineEnd(QAction* action)
{
    emit lineEndSelected(action->data().toInt());
    // A click on the checked entry does not uncheck it.
    action->setChecked(true);
}

void EditorStatusBar::setFormat(const DocumentFormat& format, bool changeable)
{
    m_format->setText(format.text());
    m_format->setEnabled(changeable);
    for (QAction* action : m_lineEnds->actions())
        action->setChecked(action->data().toInt() == format.lineEnd());
    m_mark->setChecked(format.hasMark());
    m_mark->setEnabled(format.encoding() == DocumentFormat::eEncodingUtf8);
}

void EditorStatusBar::clearFormat()
{
    m_format->setText(QString());
    m_format->setEnabled(false);
    m_position->clear();
}

void EditorStatusBar::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (m_window != window()) {
        m_window = window();
        m_window->installEventFilter(this);
    }
    fitToWindow();
}

bool EditorStatusBar::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_window && event->type() == QEvent::Resize)
        fitToWindow();
    return QWidget::eventFilter(watched, event);
}

void EditorStatusBar::fitToWindow()
{
    const bool isAlone = m_window == nullptr || m_window == this;
    m_position->setVisible(isAlone || m_window->width() >= widthForPosition);
    for (QWidget* title : qAsConst(m_titles))
        title->setVisible(isAlone || m_window->width() >= widthForTitles);
}

void EditorStatusBar::setPosition(int line, int column)
{
    m_position->setText(QStringLiteral("%1:%2").arg(line + 1).arg(column + 1));
}

void EditorStatusBar::setFontSize(int size)
{
    m_fontSize->setText(tr("%1 pt").arg(size));
}

void EditorStatusBar::setOverwrite(bool overwrite)
{
    m_mode->setText(overwrite ? tr("Overwrite") : tr("Insert"));
}

} // namespace nsModEditor
