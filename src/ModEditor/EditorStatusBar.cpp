#include "EditorStatusBar.h"

#include "MyStatusBarTitle.h"

#include <QHBoxLayout>
#include <QLabel>

namespace nsModEditor {

namespace {

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
    m_fontSize = addPair(tr("Font size:"), tr("Font size of the document, changed with Ctrl and the wheel; Ctrl+0 resets it"),
                         "editorStatusBarFontSize");
    layout->addSpacing(8);
    m_mode = addPair(tr("Mode:"), tr("What typing does to the text behind the cursor, changed with the Insert key"),
                     "editorStatusBarMode");
    layout->addStretch(1);
    // What follows must not move when a value changes.
    reserve(m_fontSize, {tr("%1 pt").arg(100)});
    reserve(m_mode, {tr("Insert"), tr("Overwrite")});
    setOverwrite(false);
}

QLabel* EditorStatusBar::addPair(const QString& title, const QString& toolTip, const QString& name)
{
    auto* titleLabel = new MyStatusBarTitle(title, this);
    titleLabel->setToolTip(toolTip);
    auto* value = new QLabel(this);
    value->setObjectName(name);
    value->setToolTip(toolTip);
    layout()->addWidget(titleLabel);
    layout()->addWidget(value);
    return value;
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
