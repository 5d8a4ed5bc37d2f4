#include "RenameDialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace nsModSymbols {

RenameDialog::RenameDialog(const QString& name, const QString& explanation,
                           std::function<QString(const QString&)> refusal, QWidget* parent)
    : QDialog(parent)
    , m_refusal(std::move(refusal))
    , m_oldName(name)
    , m_edit(new QLineEdit(name, this))
    , m_fault(new QLabel(this))
{
    setObjectName(QStringLiteral("renameDialog"));
    setWindowTitle(tr("Rename"));
    auto* label = new QLabel(tr("&New name of \"%1\":").arg(name), this);
    label->setBuddy(m_edit);
    m_edit->setToolTip(tr("Letters, digits and underscores"));
    m_edit->selectAll();
    auto* text = new QLabel(explanation, this);
    text->setTextFormat(Qt::PlainText);
    m_fault->setObjectName(QStringLiteral("fault"));
    m_fault->setTextFormat(Qt::PlainText);
    m_fault->setWordWrap(true);
    // Room for a sentence, so that the dialog keeps its size.
    m_fault->setMinimumSize(fontMetrics().averageCharWidth() * 60, fontMetrics().height() * 2);
    m_fault->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    m_ok = buttons->button(QDialogButtonBox::Ok);
    m_ok->setText(tr("Rename"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_edit, &QLineEdit::textChanged, this, &RenameDialog::check);
    auto* layout = new QVBoxLayout(this);
    for (QWidget* widget : {static_cast<QWidget*>(label), static_cast<QWidget*>(m_edit), static_cast<QWidget*>(m_fault),
                            static_cast<QWidget*>(text), static_cast<QWidget*>(buttons)})
        layout->addWidget(widget);
    check();
}

QString RenameDialog::name() const
{
    return m_edit->text();
}

void RenameDialog::check()
{
    const QString fault = m_refusal(m_edit->text());
    m_ok->setEnabled(fault.isEmpty());
    // That the present name is the present one needs no words.
    m_fault->setText(m_edit->text() == m_oldName ? QString() : fault);
}

} // namespace nsModSymbols
