#include "ProcConfigWidget.h"

#include "ProcNumberBox.h"

#include "MyFieldTitle.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QSpinBox>
#include <QTabWidget>
#include <QVBoxLayout>

#include <limits>

namespace nsProc {

namespace {

const double hzPerMHz = 1000000;
const int frequencyDecimals = 6; ///< down to single Hz, which is what the project stores
const int margin = 16;
const int gap = 8;

} // namespace

ProcConfigWidget::ProcConfigWidget(const QVector<sProcConfigField>& fields, const ProcCoreConfig& defaults,
                                   const QString& helpRef, QWidget* parent)
    : QWidget(parent)
    , m_fields(fields)
    , m_defaults(defaults)
    , m_helpRef(helpRef)
    , m_tabs(new QTabWidget(this))
{
    m_tabs->setObjectName(QStringLiteral("procConfigTabs"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_tabs);
    QGridLayout* grids[] = {addPage(tr("Processor core")), addPage(tr("Instruction memory"))};
    for (const sProcConfigField& field : qAsConst(m_fields))
        addField(grids[field.page], grids[field.page]->rowCount(), field);
    for (QGridLayout* grid : grids)
        grid->setRowStretch(grid->rowCount(), 1);
    connect(m_tabs, &QTabWidget::currentChanged, this, &ProcConfigWidget::tabChanged);
}

QGridLayout* ProcConfigWidget::addPage(const QString& title)
{
    auto* page = new QWidget(m_tabs);
    page->setObjectName(QStringLiteral("configWidget"));
    auto* grid = new QGridLayout(page);
    grid->setContentsMargins(margin, margin, margin, margin);
    grid->setSpacing(gap);
    grid->setColumnStretch(3, 1);
    m_tabs->addTab(page, title);
    return grid;
}

void ProcConfigWidget::addField(QGridLayout* grid, int row, const sProcConfigField& field)
{
    QWidget* control = createControl(field);
    control->setObjectName(QLatin1String(field.name));
    control->setToolTip(tr(field.toolTip));
    auto* title = new MyFieldTitle(tr(field.title), this);
    title->setToolTip(control->toolTip());
    title->setBuddy(control);
    control->setAccessibleName(title->text());
    grid->addWidget(title, row, 0);
    grid->addWidget(control, row, 1);
    if (*field.unit != '\0')
        grid->addWidget(new QLabel(tr(field.unit), this), row, 2);
    m_controls.append(control);
}

QWidget* ProcConfigWidget::createControl(const sProcConfigField& field)
{
    if (field.kind == sProcConfigField::eChoice) {
        auto* box = new QComboBox(this);
        for (int choice : field.choices)
            box->addItem(QString::number(choice), choice);
        return box;
    }
    if (field.kind == sProcConfigField::eNumber) {
        auto* box = new QSpinBox(this);
        box->setRange(int(field.min), int(field.max));
        box->setValue(int(field.start));
        box->setAlignment(Qt::AlignRight);
        return box;
    }
    auto* box = new ProcNumberBox(field.kind == sProcConfigField::eFrequency ? frequencyDecimals : 0, this);
    box->setRange(field.min, field.max);
    box->setValue(field.start);
    box->setAlignment(Qt::AlignRight);
    return box;
}

void ProcConfigWidget::setConfig(const ProcCoreConfig* config)
{
    for (int i = 0; i < m_fields.size(); ++i) {
        const sProcConfigField& field = m_fields.at(i);
        if (field.kind == sProcConfigField::eFrequency) {
            static_cast<ProcNumberBox*>(m_controls.at(i))->setValue(config->clkFreq / hzPerMHz);
            continue;
        }
        const int value = config->*field.value;
        if (field.kind == sProcConfigField::eChoice) {
            auto* box = static_cast<QComboBox*>(m_controls.at(i));
            box->setCurrentIndex(box->findData(value));
        } else if (field.kind == sProcConfigField::eNumber) {
            static_cast<QSpinBox*>(m_controls.at(i))->setValue(value);
        } else {
            static_cast<ProcNumberBox*>(m_controls.at(i))->setValue(value);
        }
    }
}

void ProcConfigWidget::config(ProcCoreConfig* config) const
{
    for (int i = 0; i < m_fields.size(); ++i) {
        const sProcConfigField& field = m_fields.at(i);
        if (field.kind == sProcConfigField::eFrequency) {
            config->clkFreq = qRound64(static_cast<ProcNumberBox*>(m_controls.at(i))->value() * hzPerMHz);
        } else if (field.kind == sProcConfigField::eChoice) {
            // Nothing is selected if the value of the project is not in the list: then it stays unchanged.
            const QVariant data = static_cast<QComboBox*>(m_controls.at(i))->currentData();
            if (data.isValid())
                config->*field.value = data.toInt();
        } else if (field.kind == sProcConfigField::eNumber) {
            config->*field.value = static_cast<QSpinBox*>(m_controls.at(i))->value();
        } else {
            const double value = static_cast<ProcNumberBox*>(m_controls.at(i))->value();
            config->*field.value = int(qMin<double>(value, std::numeric_limits<int>::max()));
        }
    }
}

void ProcConfigWidget::initWidget()
{
    m_tabs->setCurrentIndex(0);
}

void ProcConfigWidget::setDefaultConfig()
{
    setConfig(&m_defaults);
}

void ProcConfigWidget::tabChanged(int)
{
    if (procConfigHook != nullptr)
        procConfigHook->setWidgetHelpChanged();
}

} // namespace nsProc
