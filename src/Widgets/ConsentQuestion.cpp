#include "ConsentQuestion.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace {

const int gap = 8;
const int columns = 72;  ///< of the text that shows the act, before it scrolls
const int mostLines = 8; ///< likewise
const int iconSize = 48;

/// A control character can hide what stands beside it, so it is shown by its number.
QString readable(const QString& text)
{
    QString shown;
    for (const QChar c : text) {
        const bool isShown = c == '\n' || (c.category() != QChar::Other_Control && c.category() != QChar::Other_Format);
        shown += isShown ? QString(c) : QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QLatin1Char('0'));
    }
    return shown;
}

QPlainTextEdit* makeActView(const QString& act)
{
    auto* view = new QPlainTextEdit(readable(act));
    view->setObjectName(QStringLiteral("consentAct"));
    view->setReadOnly(true);
    view->setTabChangesFocus(true);
    QFont font(QStringLiteral("DejaVu Sans Mono"));
    font.setStyleHint(QFont::Monospace);
    view->setFont(font);
    const QFontMetrics metrics(view->font());
    int lines = 1;
    for (const QString& line : act.split('\n'))
        lines += 1 + line.size() / columns;
    view->setMinimumWidth(metrics.averageCharWidth() * columns + 2 * gap);
    view->setFixedHeight(metrics.lineSpacing() * qMin(lines, mostLines) + 2 * gap);
    return view;
}

} // namespace

bool ConsentQuestion::ask(const QString& title, const QString& text, const QString& act)
{
    if (qobject_cast<QApplication*>(QCoreApplication::instance()) == nullptr)
        return false;
    // On the heap, as its parent can be deleted while it is open, and deletes it.
    const QPointer<QDialog> dialog(new QDialog(QApplication::activeWindow()));
    dialog->setObjectName(QStringLiteral("consentQuestion"));
    dialog->setWindowTitle(title);

    auto* icon = new QLabel;
    icon->setPixmap(QApplication::style()->standardIcon(QStyle::SP_MessageBoxQuestion).pixmap(iconSize));
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    auto* head = new QHBoxLayout;
    head->setSpacing(2 * gap);
    head->addWidget(icon, 0, Qt::AlignTop);
    head->addWidget(label, 1);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Yes | QDialogButtonBox::No);
    QPushButton* no = buttons->button(QDialogButtonBox::No);
    buttons->button(QDialogButtonBox::Yes)->setAutoDefault(false);
    no->setDefault(true);
    QObject::connect(buttons, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);

    auto* layout = new QVBoxLayout(dialog);
    layout->setContentsMargins(2 * gap, 2 * gap, 2 * gap, 2 * gap);
    layout->setSpacing(2 * gap);
    layout->addLayout(head);
    layout->addWidget(makeActView(act));
    layout->addWidget(buttons);
    no->setFocus();

    const bool allowed = dialog->exec() == QDialog::Accepted;
    delete dialog;
    return allowed;
}
