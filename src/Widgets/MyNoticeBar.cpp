#include "MyNoticeBar.h"

#include "SchemeIcons.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QStyle>

namespace {

const int iconSize = 16;
const int gap = 8;
const char* const gradeNames[] = {"info", "warning", "error"};
const char* const gradeIcons[] = {":/styles/img/box-information.png", ":/ModMsg/img/msgWarning.png",
                                  ":/ModMsg/img/msgError.png"};

} // namespace

MyNoticeBar::MyNoticeBar(eGrade_t grade, const QString& text, QWidget* parent)
    : QFrame(parent)
    , m_icon(new QLabel(this))
    , m_label(new QLabel(this))
    , m_buttons(new QHBoxLayout)
    , m_close(new QPushButton(this))
{
    setObjectName(QStringLiteral("noticeBar"));
    setAutoFillBackground(true);
    setCursor(Qt::ArrowCursor);
    m_icon->setObjectName(QStringLiteral("noticeBarIcon"));
    m_label->setObjectName(QStringLiteral("noticeBarText"));
    m_label->setTextFormat(Qt::PlainText);
    m_label->setWordWrap(true);
    // A long word must not make the bar wider than the available space.
    m_label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_close->setObjectName(QStringLiteral("noticeBarClose"));
    m_close->setIcon(SchemeIcons::of(QStringLiteral(":/ModFindReplace/img/widget/closeWidget.png")));
    m_close->setToolTip(tr("Closes this notice (Esc)"));
    m_close->setAccessibleName(tr("Close notice"));
    m_close->setFlat(true);
    m_close->setAutoDefault(false);
    connect(m_close, &QPushButton::clicked, this, &MyNoticeBar::closeByUser);

    m_buttons->setSpacing(gap);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(gap, gap / 2, gap, gap / 2);
    layout->setSpacing(gap);
    layout->addWidget(m_icon);
    layout->addWidget(m_label, 1);
    layout->addLayout(m_buttons);
    layout->addWidget(m_close);
    setText(text);
    setGrade(grade);
}

void MyNoticeBar::setGrade(eGrade_t grade)
{
    m_grade = grade;
    showIcon();
    // The style sheet gives each grade its background colour.
    setProperty("grade", QString::fromLatin1(gradeNames[grade]));
    style()->unpolish(this);
    style()->polish(this);
}

void MyNoticeBar::showIcon()
{
    m_icon->setPixmap(SchemeIcons::of(QString::fromLatin1(gradeIcons[m_grade])).pixmap(iconSize, iconSize));
}

QString MyNoticeBar::text() const
{
    return m_label->text();
}

void MyNoticeBar::setText(const QString& text)
{
    m_label->setText(text);
    m_label->setToolTip(text);
    setAccessibleName(text);
    updateGeometry();
}

QPushButton* MyNoticeBar::addButton(const QString& text, const QString& toolTip)
{
    auto* button = new QPushButton(text, this);
    button->setObjectName(QStringLiteral("noticeBarButton"));
    button->setToolTip(toolTip);
    button->setAutoDefault(false);
    m_buttons->addWidget(button);
    // The Tab key moves from left to right.
    setTabOrder(button, m_close);
    updateGeometry();
    return button;
}

QWidget* MyNoticeBar::firstControl() const
{
    return controls().first();
}

/// What can take the focus, from left to right.
QList<QWidget*> MyNoticeBar::controls() const
{
    QList<QWidget*> result;
    for (int i = 0; i < m_buttons->count(); ++i) {
        if (m_buttons->itemAt(i)->widget()->isEnabled())
            result.append(m_buttons->itemAt(i)->widget());
    }
    return result << m_close;
}

bool MyNoticeBar::focusNextPrevChild(bool next)
{
    if (QFrame::focusNextPrevChild(next))
        return true;
    // An editor uses the Tab key for its text, so in its bars the key cycles through the controls of the bars.
    QList<QWidget*> all;
    for (const MyNoticeBar* bar : parentWidget()->findChildren<MyNoticeBar*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (!bar->isHidden())
            all += bar->controls();
    }
    const int index = all.indexOf(QApplication::focusWidget());
    if (index < 0)
        return false;
    all.at((index + (next ? 1 : all.size() - 1)) % all.size())
        ->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

bool MyNoticeBar::event(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange)
        showIcon();
    // The keys of the bar are not those of the commands of an editor around it.
    if (event->type() == QEvent::ShortcutOverride) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Tab || key == Qt::Key_Backtab || key == Qt::Key_Escape) {
            event->accept();
            return true;
        }
    }
    return QFrame::event(event);
}

void MyNoticeBar::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        closeByUser();
    event->accept();
}

void MyNoticeBar::mousePressEvent(QMouseEvent* event)
{
    event->accept();
}

void MyNoticeBar::closeByUser()
{
    dismiss();
    emit closed();
}

void MyNoticeBar::dismiss()
{
    // Returns the focus to the widget that contains the bar.
    QWidget* home = parentWidget();
    while (home != nullptr && home->focusPolicy() == Qt::NoFocus)
        home = home->parentWidget();
    if (home != nullptr && isAncestorOf(QApplication::focusWidget()))
        home->setFocus();
    hide();
    deleteLater();
}
