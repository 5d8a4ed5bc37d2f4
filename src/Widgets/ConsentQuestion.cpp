#include "ConsentQuestion.h"

#include "HelpRef.h"
#include "Unattended.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QStyle>
#include <QTextOption>
#include <QVBoxLayout>

#include <cstdio>

namespace {

const int gap = 8;
const int columns = 72;   ///< of the text that shows the act, before it scrolls
const int mostLines = 16; ///< likewise
const int iconSize = 48;

QStringList readableLines(const QString& text)
{
    QStringList lines = text.split('\n');
    for (QString& line : lines)
        line = ConsentQuestion::readable(line);
    return lines;
}

/// Lines that the texts take when they are wrapped, at the most.
int linesOf(const QStringList& texts)
{
    int lines = 1;
    for (const QString& text : texts)
        lines += 1 + text.size() / columns;
    return lines;
}

QPlainTextEdit* makeActView(const QStringList& shown)
{
    auto* view = new QPlainTextEdit(shown.join('\n'));
    view->setObjectName(QStringLiteral("consentAct"));
    view->setReadOnly(true);
    view->setTabChangesFocus(true);
    // A line that is broken at a blank would look like two.
    view->setWordWrapMode(QTextOption::WrapAnywhere);
    QFont font(QStringLiteral("DejaVu Sans Mono"));
    font.setStyleHint(QFont::Monospace);
    view->setFont(font);
    const QFontMetrics metrics(view->font());
    view->setMinimumWidth(metrics.averageCharWidth() * columns + 2 * gap);
    view->setFixedHeight(metrics.lineSpacing() * qMin(linesOf(shown), mostLines) + 2 * gap);
    return view;
}

} // namespace

bool ConsentQuestion::isUnattended()
{
    return Unattended::isOn() || qobject_cast<QApplication*>(QCoreApplication::instance()) == nullptr;
}

QString ConsentQuestion::readable(const QString& line)
{
    QString shown;
    for (const uint c : line.toUcs4()) {
        switch (QChar::category(c)) {
        case QChar::Other_Control:
        case QChar::Other_Format:
        case QChar::Other_Surrogate:
        case QChar::Other_PrivateUse:
        case QChar::Other_NotAssigned:
        case QChar::Separator_Line:
        case QChar::Separator_Paragraph:
            shown += QStringLiteral("\\u%1").arg(c, 4, 16, QLatin1Char('0'));
            break;
        default:
            shown += QString::fromUcs4(&c, 1);
        }
    }
    return shown;
}

ConsentQuestion::eAnswer_t ConsentQuestion::ask(const QString& title, const QString& text, const QString& act,
                                                const QString& helpPage)
{
    if (isUnattended()) {
        QStringList lines = readableLines(act);
        for (QString& line : lines)
            line = line.trimmed();
        std::fprintf(
            stderr, "%s\n",
            tr("%1: nobody can be asked, so this is not allowed: %2").arg(title, lines.join(' ')).toUtf8().constData());
        return answerNobody;
    }
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
    HelpRef::set(dialog, helpPage, buttons);
    QPushButton* no = buttons->button(QDialogButtonBox::No);
    buttons->button(QDialogButtonBox::Yes)->setAutoDefault(false);
    no->setDefault(true);
    QObject::connect(buttons, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);

    auto* layout = new QVBoxLayout(dialog);
    layout->setContentsMargins(2 * gap, 2 * gap, 2 * gap, 2 * gap);
    layout->setSpacing(2 * gap);
    layout->addLayout(head);
    const QStringList shown = readableLines(act);
    layout->addWidget(makeActView(shown));
    if (linesOf(shown) > mostLines) {
        auto* more = new QLabel(tr("The text is longer than it looks: scroll to read all of it before you allow it."));
        more->setObjectName(QStringLiteral("consentMore"));
        layout->addWidget(more);
    }
    layout->addWidget(buttons);
    no->setFocus();
    // The wrapped text needs its height at this width.
    const int width = layout->sizeHint().width();
    dialog->resize(width, layout->totalHeightForWidth(width));

    const bool allowed = dialog->exec() == QDialog::Accepted;
    delete dialog;
    return allowed ? answerYes : answerNo;
}
