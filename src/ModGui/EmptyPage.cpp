#include "EmptyPage.h"

#include "Colors.h"

#include <QCoreApplication>
#include <QPainter>

namespace nsModGui {

namespace {

const int gap = 8; ///< pixels between name and hint

} // namespace

EmptyPage::EmptyPage(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("emptyPage"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
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

    QFont nameFont = font();
    nameFont.setPointSizeF(qMax(1.0, font().pointSizeF()) * 3.2);
    nameFont.setWeight(QFont::Light);
    const int nameHeight = QFontMetrics(nameFont).height();
    const int hintHeight = fontMetrics().height() * (hint().count('\n') + 1);
    // Slightly above the middle, which looks centred.
    const int top = qMax(0, (height() - nameHeight - gap - hintHeight) * 2 / 5);

    painter.setFont(nameFont);
    painter.setPen(Colors::of(Colors::eTextSecond));
    painter.drawText(QRect(0, top, width(), nameHeight), Qt::AlignCenter, QCoreApplication::applicationName());
    painter.setFont(font());
    painter.setPen(Colors::of(Colors::eTextSecond));
    const QRect lines(2 * gap, top + nameHeight + gap, width() - 4 * gap, height() - top - nameHeight - 2 * gap);
    painter.drawText(lines, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, hint());
}

} // namespace nsModGui
