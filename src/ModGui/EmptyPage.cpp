#include "EmptyPage.h"

#include "Colors.h"

#include <QCoreApplication>
#include <QPainter>
#include <QScrollArea>

namespace nsModGui {

namespace {

const int gap = 8;         ///< pixels between name and hint
const int pageWidth = 560; ///< pixels that a page gets at the most

} // namespace

EmptyPage::EmptyPage(QWidget* parent)
    : QWidget(parent)
    , m_content(this, [this] { makeContent(); })
{
    setObjectName(QStringLiteral("emptyPage"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
}

void EmptyPage::makeContent()
{
    m_area = new QScrollArea(this);
    m_area->setObjectName(QStringLiteral("emptyPageArea"));
    m_area->setFrameStyle(QFrame::NoFrame);
    m_area->setWidgetResizable(true);
    m_area->setFocusPolicy(Qt::NoFocus);
    m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_area->hide();
    if (m_page)
        setPage(m_page);
}

void EmptyPage::setPage(QWidget* page)
{
    const bool isThere = m_content.isThere();
    if (m_page && isThere)
        m_area->takeWidget();
    if (m_page && m_page != page)
        m_page->setParent(nullptr);
    m_page = page;
    if (!isThere)
        return;
    if (page != nullptr)
        m_area->setWidget(page);
    setAttribute(Qt::WA_TransparentForMouseEvents, page == nullptr);
    m_area->setVisible(page != nullptr);
    layoutPage();
    update();
}

QFont EmptyPage::nameFont() const
{
    QFont large = font();
    large.setPointSizeF(qMax(1.0, font().pointSizeF()) * 3.2);
    large.setWeight(QFont::Light);
    return large;
}

int EmptyPage::nameHeight() const
{
    return QFontMetrics(nameFont()).height();
}

void EmptyPage::layoutPage()
{
    if (!m_content.isThere())
        return;
    const int top = 2 * gap + nameHeight();
    const int width = qMin(pageWidth, this->width() - 4 * gap);
    m_area->setGeometry((this->width() - width) / 2, top, qMax(0, width), qMax(0, height() - top - 2 * gap));
}

void EmptyPage::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    layoutPage();
}

void EmptyPage::setOpenText(const QString& text)
{
    m_openText = text;
    update();
}

QString EmptyPage::hint() const
{
    if (m_openText.isEmpty())
        return tr("Open a project: Configuration > Open project...\nMake a new one: Configuration > New project...");
    // All steps, as a new project has neither source nor processor nor output.
    return m_openText + "\n\n" +
           tr("Write a source: File > New...\n"
              "Choose processor and outputs: Configuration > Configure...\n"
              "Run it through the assembler: Assembler > Run assembler");
}

void EmptyPage::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), Colors::of(Colors::eHairLine));
    painter.fillRect(rect().adjusted(1, 1, -1, -1), Colors::of(Colors::ePage));

    const int hintHeight = fontMetrics().height() * (hint().count('\n') + 1);
    // Slightly above the middle, which looks centred.
    const int top = m_page ? gap : qMax(0, (height() - nameHeight() - gap - hintHeight) * 2 / 5);

    painter.setFont(nameFont());
    painter.setPen(Colors::of(Colors::eTextSecond));
    painter.drawText(QRect(0, top, width(), nameHeight()), Qt::AlignCenter, QCoreApplication::applicationName());
    if (m_page)
        return;
    painter.setFont(font());
    painter.setPen(Colors::of(Colors::eTextSecond));
    const QRect lines(2 * gap, top + nameHeight() + gap, width() - 4 * gap, height() - top - nameHeight() - 2 * gap);
    painter.drawText(lines, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, hint());
}

} // namespace nsModGui
