#include "ProcSimRegPage.h"

#include "ProcSimCoreData.h"
#include "ProcSimEdtNumeric.h"

#include <QGridLayout>
#include <QLabel>

namespace nsProc {

namespace {

const int aliasWidth = 40; ///< pixels; of a longer name the end is shown, and the whole name as tool tip

} // namespace

ProcSimRegPage::ProcSimRegPage(std::shared_ptr<ProcSimCoreData> data, int bank,
                               const std::function<QString(int)>& nameOf, QWidget* parent)
    : QWidget(parent)
    , m_data(std::move(data))
    , m_bank(bank)
{
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setHorizontalSpacing(4);
    layout->setVerticalSpacing(0);
    for (int index = 0; index < m_data->regCount(); ++index) {
        const QString name = nameOf(index);
        auto* title = new QLabel(name, this);
        auto* value = new ProcSimEdtNumeric(this);
        value->setToolTip(tr("Register %1").arg(name));
        value->setAccessibleName(value->toolTip());
        // Low rows, as in a table: sixteen of them have to stand above the scratchpad.
        value->setFixedHeight(value->fontMetrics().height() + 4);
        auto* alias = new QLabel(this);
        alias->setObjectName(QStringLiteral("procSimAlias"));
        alias->setMinimumWidth(aliasWidth);
        alias->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        layout->addWidget(title, index, 0, Qt::AlignRight | Qt::AlignVCenter);
        layout->addWidget(value, index, 1);
        layout->addWidget(alias, index, 2);
        m_rows.append({name, value, alias, QString()});
        connect(value, &ProcSimEdtNumeric::edited, this,
                [this, index](int edited) { m_data->editReg(m_bank, index, edited); });
    }
    layout->setColumnStretch(2, 1);
    refresh();
}

void ProcSimRegPage::setBase(int base)
{
    for (const sRow_t& row : qAsConst(m_rows))
        row.value->setBase(base);
}

void ProcSimRegPage::refresh()
{
    for (int index = 0; index < m_rows.size(); ++index) {
        sRow_t& row = m_rows[index];
        row.value->setValue(m_data->regValue(m_bank, index));
        row.value->setHighlightEn(m_data->isRegHighlighted(m_bank, index));
        const QString& alias = m_data->regAlias(m_bank, index);
        if (alias == row.shownAlias)
            continue;
        row.shownAlias = alias;
        row.alias->setToolTip(secondName(row));
        showAlias(row);
    }
}

QString ProcSimRegPage::secondName(const sRow_t& row)
{
    return row.shownAlias.compare(row.name, Qt::CaseInsensitive) == 0 ? QString() : row.shownAlias;
}

void ProcSimRegPage::showAlias(const sRow_t& row)
{
    // Names differ at their ends, after a namespace.
    row.alias->setText(row.alias->fontMetrics().elidedText(secondName(row), Qt::ElideLeft, row.alias->width()));
}

void ProcSimRegPage::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    layout()->activate();
    for (const sRow_t& row : qAsConst(m_rows))
        showAlias(row);
}

} // namespace nsProc
