#include "GotoLineField.h"

#include "EditorWidget.h"
#include "TextColumns.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpressionValidator>
#include <QTextBlock>

namespace nsModEditor {

namespace {

const QString fieldName = QStringLiteral("gotoLineField");
const QString placePattern = QStringLiteral("([0-9]{1,9})(?::([0-9]{1,9}))?");
const int gap = 8;

} // namespace

GotoLineField* GotoLineField::open(EditorWidget* editor)
{
    auto* field = editor->findChild<GotoLineField*>(fieldName, Qt::FindDirectChildrenOnly);
    if (field == nullptr)
        field = new GotoLineField(editor);
    field->m_edit->setText(QString::number(editor->cursorLine() + 1));
    field->m_edit->selectAll();
    field->adjustSize();
    const QRect area = editor->viewport()->geometry();
    field->move(qMax(area.left(), area.right() - field->width() - gap), area.top());
    field->show();
    field->raise();
    field->m_edit->setFocus();
    return field;
}

GotoLineField::GotoLineField(EditorWidget* editor)
    : QFrame(editor)
    , m_editor(editor)
    , m_edit(new QLineEdit(this))
{
    setObjectName(fieldName);
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(gap, gap / 2, gap, gap / 2);
    auto* label = new QLabel(tr("Go to line:"), this);
    label->setBuddy(m_edit);
    layout->addWidget(label);
    layout->addWidget(m_edit);
    m_edit->setObjectName(QStringLiteral("editGotoLine"));
    m_edit->setToolTip(tr("Number of a line, or of a line and a column: 120 or 120:8. Enter goes there."));
    m_edit->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]{0,9}(:[0-9]{0,9})?")), m_edit));
    m_edit->installEventFilter(this);
    setFocusProxy(m_edit);
}

bool GotoLineField::goTo(EditorWidget* editor, const QString& place)
{
    const QRegularExpressionMatch match =
        QRegularExpression(QRegularExpression::anchoredPattern(placePattern)).match(place.trimmed());
    if (!match.hasMatch())
        return false;
    const int line = qBound(1, match.captured(1).toInt(), editor->blockCount()) - 1;
    const QTextBlock block = editor->document()->findBlockByNumber(line);
    const int column = qMax(match.captured(2).toInt(), 1) - 1;
    editor->setCursorPos(block.position() + TextColumns(block.text(), editor->indentStyle().width).indexAt(column));
    return true;
}

void GotoLineField::close()
{
    const bool hadFocus = m_edit->hasFocus();
    hide();
    deleteLater();
    setObjectName(QString());
    if (hadFocus)
        m_editor->setFocus();
}

void GotoLineField::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        close();
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (goTo(m_editor, m_edit->text()))
            close();
    }
    // What the field does not use is not typed into the document.
    event->accept();
}

bool GotoLineField::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusOut && isVisible() &&
        static_cast<QFocusEvent*>(event)->reason() != Qt::ActiveWindowFocusReason)
        close();
    return QFrame::eventFilter(watched, event);
}

} // namespace nsModEditor
