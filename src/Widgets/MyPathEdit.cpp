#include "MyPathEdit.h"

#include <QDir>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QStyle>
#include <QUrl>

namespace {

/// The first local file that the drag carries, or an empty text.
QString localFile(const QMimeData* data)
{
    for (const QUrl& url : data->urls()) {
        if (url.isLocalFile())
            return url.toLocalFile();
    }
    return QString();
}

} // namespace

MyPathEdit::MyPathEdit(QWidget* parent)
    : QLineEdit(parent)
{
    setObjectName(QStringLiteral("pathEdit"));
    setAcceptDrops(true);
    connect(this, &QLineEdit::textChanged, this, &MyPathEdit::showEnd);
}

void MyPathEdit::setDescription(const QString& description)
{
    m_description = description;
    updateToolTip();
}

void MyPathEdit::setFullPath(const QString& path)
{
    m_fullPath = path;
    updateToolTip();
}

void MyPathEdit::setProblem(const QString& problem)
{
    if (m_problem == problem)
        return;
    const bool repolish = m_problem.isEmpty() != problem.isEmpty();
    m_problem = problem;
    updateToolTip();
    if (!repolish)
        return;
    setProperty("problem", !problem.isEmpty());
    style()->unpolish(this);
    style()->polish(this);
}

void MyPathEdit::updateToolTip()
{
    QStringList lines;
    for (const QString& line : {m_description, QDir::toNativeSeparators(m_fullPath), m_problem}) {
        if (!line.isEmpty())
            lines.append(line.toHtmlEscaped());
    }
    // As rich text a long path is wrapped.
    setToolTip(lines.isEmpty() ? QString()
                               : QLatin1String("<p>") + lines.join(QLatin1String("<br>")) + QLatin1String("</p>"));
}

void MyPathEdit::showEnd()
{
    // While the user edits, the cursor must not be moved.
    if (!hasFocus())
        end(false);
}

void MyPathEdit::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    // After a context menu the selection must still be there.
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason)
        end(false);
}

void MyPathEdit::dragEnterEvent(QDragEnterEvent* event)
{
    if (isReadOnly() || localFile(event->mimeData()).isEmpty())
        QLineEdit::dragEnterEvent(event);
    else
        event->acceptProposedAction();
}

void MyPathEdit::dragMoveEvent(QDragMoveEvent* event)
{
    if (isReadOnly() || localFile(event->mimeData()).isEmpty())
        QLineEdit::dragMoveEvent(event);
    else
        event->acceptProposedAction();
}

void MyPathEdit::dropEvent(QDropEvent* event)
{
    const QString path = isReadOnly() ? QString() : localFile(event->mimeData());
    if (path.isEmpty()) {
        QLineEdit::dropEvent(event);
        return;
    }
    event->acceptProposedAction();
    emit fileDropped(path);
}
