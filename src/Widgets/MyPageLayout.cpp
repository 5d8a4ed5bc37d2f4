#include "MyPageLayout.h"

#include "MyFieldTitle.h"
#include "MyPageTitle.h"
#include "MySectionTitle.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>

namespace {

enum eColumn_t { columnTitle = 0, columnField = 1, columnUnit = 2, columnSpace = 3, columnCount = 4 };

const int pageMargin = 16;
const int gap = 8;
const int sectionGap = 16; ///< pixels above the heading of a section, beside the gap between rows

/// A mark is as wide as its text, and so is the frame that shows its focus; all others take their share of the width.
Qt::Alignment alignmentOf(const QWidget* field)
{
    const bool isMark =
        qobject_cast<const QCheckBox*>(field) != nullptr || qobject_cast<const QRadioButton*>(field) != nullptr;
    return isMark ? Qt::AlignLeft | Qt::AlignVCenter : Qt::Alignment();
}

} // namespace

MyPageLayout::MyPageLayout(QWidget* page, const QString& title)
    : QVBoxLayout(page)
    , m_note(new QLabel(page))
    , m_content(new QWidget(page))
    , m_grid(new QGridLayout(m_content))
{
    setContentsMargins(pageMargin, pageMargin, pageMargin, pageMargin);
    setSpacing(gap);
    m_note->setObjectName(QStringLiteral("pageNote"));
    m_note->setWordWrap(true);
    m_note->setVisible(false);
    m_content->setObjectName(QStringLiteral("pageContent"));
    m_grid->setContentsMargins(0, gap, 0, 0);
    m_grid->setHorizontalSpacing(gap);
    m_grid->setVerticalSpacing(gap);
    m_grid->setColumnStretch(columnSpace, 1);

    addWidget(new MyPageTitle(title, page));
    addWidget(m_note);
    addWidget(m_content);
    addStretch(1);
}

MySectionTitle* MyPageLayout::addSection(const QString& title)
{
    if (m_row > 0)
        m_grid->setRowMinimumHeight(m_row++, sectionGap - gap);
    auto* label = new MySectionTitle(title, m_content);
    m_grid->addWidget(label, m_row++, 0, 1, columnCount);
    return label;
}

MyFieldTitle* MyPageLayout::addField(const QString& title, QWidget* field, const QString& toolTip, const QString& unit)
{
    auto* label = new MyFieldTitle(title, m_content);
    label->setBuddy(field);
    if (QWidget* part = field->focusProxy())
        part->setAccessibleName(label->text());
    if (!toolTip.isEmpty())
        field->setToolTip(toolTip);
    label->setToolTip(toolTip.isEmpty() ? field->toolTip() : toolTip);
    const bool wide = unit.isEmpty() && (field->sizePolicy().horizontalPolicy() & QSizePolicy::ExpandFlag) != 0;
    // Beside a field of several lines, the label is aligned with the first line.
    const bool high = (field->sizePolicy().verticalPolicy() & QSizePolicy::ExpandFlag) != 0;
    m_grid->addWidget(label, m_row, columnTitle, high ? Qt::AlignTop : Qt::AlignVCenter);
    if (wide)
        m_grid->addWidget(field, m_row, columnField, 1, columnCount - columnField, alignmentOf(field));
    else
        m_grid->addWidget(field, m_row, columnField, alignmentOf(field));
    if (!unit.isEmpty())
        m_grid->addWidget(new QLabel(unit, m_content), m_row, columnUnit);
    ++m_row;
    return label;
}

void MyPageLayout::addRow(QWidget* widget)
{
    m_grid->addWidget(widget, m_row++, columnField, 1, columnCount - columnField, alignmentOf(widget));
}

void MyPageLayout::addRow(QLayout* row)
{
    m_grid->addLayout(row, m_row++, columnField, 1, columnCount - columnField);
}

void MyPageLayout::addWide(QWidget* widget)
{
    m_grid->addWidget(widget, m_row++, 0, 1, columnCount, alignmentOf(widget));
}

void MyPageLayout::addWide(QLayout* row)
{
    m_grid->addLayout(row, m_row++, 0, 1, columnCount);
}

void MyPageLayout::addFill(QWidget* widget)
{
    m_grid->addWidget(widget, m_row, 0, 1, columnCount);
    endOfFill();
}

void MyPageLayout::addFill(QLayout* row)
{
    m_grid->addLayout(row, m_row, 0, 1, columnCount);
    endOfFill();
}

void MyPageLayout::endOfFill()
{
    m_grid->setRowStretch(m_row++, 1);
    if (m_fills)
        return;
    m_fills = true;
    setStretchFactor(m_content, 1);
    delete takeAt(count() - 1);
}

QLabel* MyPageLayout::addHint(const QString& text)
{
    auto* label = new QLabel(text, m_content);
    label->setObjectName(QStringLiteral("pageHint"));
    label->setWordWrap(true);
    addWide(label);
    return label;
}

void MyPageLayout::setNote(const QString& note)
{
    m_note->setText(note);
    m_note->setVisible(!note.isEmpty());
}

QString MyPageLayout::note() const
{
    return m_note->text();
}

void MyPageLayout::setContentEnabled(bool enabled)
{
    m_content->setEnabled(enabled);
}

void MyPageLayout::setPrjConfigEnabled(bool enabled)
{
    setContentEnabled(enabled);
    setNote(enabled ? QString() : tr("These settings belong to a project. Open a project to change them."));
}
