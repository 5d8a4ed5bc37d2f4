#include "Unattended.h"

#include <QDialog>
#include <QEvent>
#include <QMessageBox>
#include <QPointer>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QTimer>

#include <cstdio>

namespace {

QPointer<Unattended> standIn;

QString plain(const QString& text)
{
    return Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}

} // namespace

void Unattended::setOn(bool on)
{
    if (on == isOn() || qApp == nullptr)
        return;
    if (!on) {
        delete standIn;
        return;
    }
    standIn = new Unattended(qApp);
    qApp->installEventFilter(standIn);
}

bool Unattended::isOn()
{
    return standIn != nullptr;
}

bool Unattended::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Show)
        return false;
    auto* dialog = qobject_cast<QDialog*>(watched);
    // After the dialog has begun to wait for its answer.
    if (dialog != nullptr && dialog->isModal())
        QTimer::singleShot(0, dialog, [dialog] { answer(dialog); });
    return false;
}

void Unattended::answer(QDialog* dialog)
{
    QString text = dialog->windowTitle();
    if (const auto* box = qobject_cast<QMessageBox*>(dialog))
        text += ": " + plain(box->text());
    std::fprintf(stderr, "%s\n", tr("Nobody can answer this: %1").arg(text.simplified()).toUtf8().constData());
    // A box without an answer for Esc ignores a close.
    const QPointer<QDialog> left(dialog);
    if (!dialog->close() && left != nullptr)
        left->reject();
}
