#include "MyLinkList.h"

#include "MyElidedLabel.h"
#include "MyLinkButton.h"
#include "MySectionTitle.h"
#include "SchemeIcons.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

const int gap = 4;
const int sectionGap = 12;

/// A tool tip that is not interpreted as rich text.
QString plainToolTip(const QString& text)
{
    return text.isEmpty() ? QString() : QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped());
}

} // namespace

MyLinkList::MyLinkList(QWidget* parent)
    : QWidget(parent)
    , m_layout(new QVBoxLayout(this))
{
    setObjectName(QStringLiteral("linkList"));
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->addStretch(1);
}

void MyLinkList::setSections(const QVector<sSection_t>& sections)
{
    int focused = -1;
    if (m_content != nullptr) {
        const QList<QAbstractButton*> buttons = m_content->findChildren<QAbstractButton*>();
        for (int i = 0; i < buttons.size(); ++i)
            focused = buttons.at(i)->hasFocus() ? i : focused;
        m_layout->removeWidget(m_content);
        m_content->hide();
        // Deleted later, as the call may come from one of its links.
        m_content->deleteLater();
        m_content->setObjectName(QString());
    }
    m_texts.clear();
    m_content = new QWidget(this);
    m_content->setObjectName(QStringLiteral("linkListContent"));
    auto* lines = new QVBoxLayout(m_content);
    lines->setContentsMargins(0, 0, 0, 0);
    lines->setSpacing(gap);
    bool isFirst = true;
    for (const sSection_t& section : sections) {
        if (section.links.isEmpty())
            continue;
        if (!isFirst)
            lines->addSpacing(sectionGap);
        isFirst = false;
        if (!section.title.isEmpty()) {
            m_texts.append(section.title);
            lines->addWidget(new MySectionTitle(section.title, m_content));
        }
        for (const sLink_t& link : section.links)
            lines->addWidget(makeLine(link, m_content));
    }
    m_layout->insertWidget(0, m_content);
    m_content->show();
    const QList<QAbstractButton*> buttons = m_content->findChildren<QAbstractButton*>();
    orderTabs();
    if (focused >= 0 && !buttons.isEmpty())
        buttons.at(qMin(focused, buttons.size() - 1))->setFocus();
    updateGeometry();
}

void MyLinkList::setTabBefore(QWidget* field)
{
    m_before = field;
    orderTabs();
}

/// New lines would come last.
void MyLinkList::orderTabs()
{
    QWidget* before = m_before;
    if (before == nullptr || m_content == nullptr)
        return;
    for (QAbstractButton* button : m_content->findChildren<QAbstractButton*>()) {
        setTabOrder(before, button);
        before = button;
    }
}

QWidget* MyLinkList::makeLine(const sLink_t& link, QWidget* parent)
{
    m_texts.append(link.text);
    auto* line = new QWidget(parent);
    auto* row = new QHBoxLayout(line);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2 * gap);
    QWidget* text = nullptr;
    if (link.act) {
        auto* button = new MyLinkButton(link.text, line);
        connect(button, &QPushButton::clicked, this, [act = link.act] { act(); });
        text = button;
    } else {
        auto* label = new QLabel(line);
        label->setTextFormat(Qt::PlainText);
        label->setText(link.text);
        text = label;
    }
    text->setToolTip(plainToolTip(link.toolTip));
    text->setProperty("strong", link.isStrong); // for the style sheet
    if (link.isStrong) {
        QFont font = text->font();
        font.setBold(true);
        text->setFont(font);
    }
    row->addWidget(text);
    if (!link.detail.isEmpty()) {
        auto* detail = new MyElidedLabel(Qt::ElideMiddle, line);
        detail->setObjectName(QStringLiteral("pageHint"));
        detail->setText(link.detail);
        detail->setToolTip(plainToolTip(link.toolTip));
        row->addWidget(detail, 1);
    } else {
        row->addStretch(1);
    }
    if (link.remove) {
        auto* remove = new QToolButton(line);
        remove->setObjectName(QStringLiteral("linkRemove"));
        remove->setAutoRaise(true);
        remove->setFocusPolicy(Qt::StrongFocus);
        remove->setIcon(SchemeIcons::of(QStringLiteral(":/ModGui/img/tab-close.png")));
        remove->setToolTip(tr("Takes this line off the list"));
        remove->setAccessibleName(tr("Remove %1 from the list").arg(link.text));
        connect(remove, &QToolButton::clicked, this, [act = link.remove] { act(); });
        row->addWidget(remove);
    }
    return line;
}
