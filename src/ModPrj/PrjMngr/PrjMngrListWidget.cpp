#include "PrjMngrListWidget.h"

#include "PrjMngrListElementWidget.h"

#include "MySectionTitle.h"

#include <QCoreApplication>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

namespace nsModPrj {

namespace {

const int gap = 8;
const int areaMinHeight = 72; ///< pixels
const int layoutLevels = 6;   ///< from a card to the page

} // namespace

PrjMngrListWidget::PrjMngrListWidget(QWidget* parent)
    : QWidget(parent)
    , m_area(new QScrollArea(this))
    , m_hint(new QLabel(
          tr("Empty. Add projects above, or make one under \"New project\" at the left: they then stand here at "
             "each start."),
          this))
{
    setObjectName(QStringLiteral("prjMngrList"));
    m_hint->setObjectName(QStringLiteral("pageHint"));
    m_hint->setWordWrap(true);
    auto* content = new QWidget(m_area);
    content->setObjectName(QStringLiteral("prjMngrListContent"));
    m_layout = new QVBoxLayout(content);
    m_layout->setContentsMargins(0, 0, gap, 0);
    m_layout->setSpacing(gap);
    m_layout->addWidget(m_hint);
    m_layout->addStretch(1);
    m_area->setObjectName(QStringLiteral("prjMngrListArea"));
    m_area->setFrameStyle(QFrame::NoFrame);
    m_area->setWidgetResizable(true);
    m_area->setMinimumHeight(areaMinHeight);
    m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_area->setWidget(content);
    // The cards, not the area around them, take the focus.
    m_area->setFocusPolicy(Qt::NoFocus);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(gap);
    layout->addWidget(new MySectionTitle(tr("Project collection:"), this));
    layout->addWidget(m_area, 1);
    updateHint();
}

void PrjMngrListWidget::addValid(const QString& prjFile, const QString& title, const QString& version,
                                 const QString& comment)
{
    PrjMngrListElementWidget* element = nullptr;
    for (PrjMngrListElementWidget* candidate : qAsConst(m_elements)) {
        if (candidate->prjFile() == prjFile)
            element = candidate;
    }
    if (element == nullptr) {
        element = new PrjMngrListElementWidget(m_area->widget());
        m_layout->insertWidget(m_elements.size(), element);
        // What was made before stands before it in the tab order, also the buttons below the list.
        if (QWidget* before = lastField())
            setTabOrder(before, element->firstField());
        setTabOrder(element->firstField(), element->lastField());
        m_elements.append(element);
        connect(element, &PrjMngrListElementWidget::open, this, &PrjMngrListWidget::openElement);
        connect(element, &PrjMngrListElementWidget::remove, this, &PrjMngrListWidget::removeElement);
    }
    element->setPrjInfo(prjFile, title, version, comment);
    updateHint();
    emit listChanged();
}

QStringList PrjMngrListWidget::prjCollection() const
{
    QStringList collection;
    for (const PrjMngrListElementWidget* element : m_elements)
        collection.append(element->prjFile());
    return collection;
}

void PrjMngrListWidget::showProject(const QString& prjFile)
{
    // A new card gets its place when the layout runs.
    QMetaObject::invokeMethod(
        this,
        [this, prjFile] {
            for (PrjMngrListElementWidget* element : qAsConst(m_elements)) {
                if (element->prjFile() != prjFile)
                    continue;
                // A layout that changes a size posts the request for the next one.
                for (int level = 0; level < layoutLevels; ++level)
                    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
                for (QWidget* above = element->parentWidget(); above != nullptr; above = above->parentWidget()) {
                    if (auto* area = qobject_cast<QScrollArea*>(above))
                        area->ensureWidgetVisible(element, 0, gap);
                }
            }
        },
        Qt::QueuedConnection);
}

QWidget* PrjMngrListWidget::lastField() const
{
    return m_elements.isEmpty() ? nullptr : m_elements.last()->lastField();
}

void PrjMngrListWidget::openElement(QWidget* element)
{
    emit open(static_cast<PrjMngrListElementWidget*>(element)->prjFile());
}

void PrjMngrListWidget::removeElement(QWidget* element)
{
    const int index = m_elements.indexOf(static_cast<PrjMngrListElementWidget*>(element));
    if (index < 0)
        return;
    PrjMngrListElementWidget* removed = m_elements.takeAt(index);
    m_layout->removeWidget(removed);
    removed->hide();
    // Deleted later, as the call comes from its own button.
    removed->deleteLater();
    updateHint();
    emit listChanged();
}

void PrjMngrListWidget::updateHint()
{
    m_hint->setVisible(m_elements.isEmpty());
}

} // namespace nsModPrj
