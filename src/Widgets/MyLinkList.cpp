#include "MyLinkList.h"

#include "MyElidedLabel.h"
#include "MyLinkButton.h"
#include "MySectionTitle.h"
#include "SchemeIcons.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

const int gap = 4;
const int sectionGap = 12;

/// A tool tip that is not interpreted as rich text.
QString plainToolTip(const QString& text)
{
    return text.isEmpty() ? QString() : QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped());
}

/// Whether two lists look the same, whatever their links do.
bool isSameLook(const QVector<MyLinkList::sSection_t>& one, const QVector<MyLinkList::sSection_t>& other)
{
    const auto isSameLink = [](const MyLinkList::sLink_t& a, const MyLinkList::sLink_t& b) {
        return a.text == b.text && a.detail == b.detail && a.toolTip == b.toolTip && a.isStrong == b.isStrong &&
               bool(a.act) == bool(b.act) && bool(a.remove) == bool(b.remove);
    };
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [&](const MyLinkList::sSection_t& a, const MyLinkList::sSection_t& b) {
                          return a.title == b.title &&
                                 std::equal(a.links.begin(), a.links.end(), b.links.begin(), b.links.end(), isSameLink);
                      });
}

} // namespace

MyLinkList::MyLinkList(QWidget* parent)
    : QWidget(parent)
    , m_layout(new QVBoxLayout(this))
    , m_late(
          this, [this] { showSections(); }, LateContent::eTabsOfItsOwn)
{
    setObjectName(QStringLiteral("linkList"));
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->addStretch(1);
}

void MyLinkList::setSections(const QVector<sSection_t>& sections)
{
    const bool isShown = m_late.isThere() && m_content != nullptr && isSameLook(sections, m_sections);
    m_sections = sections;
    if (m_late.isThere() && !isShown)
        showSections();
}

QStringList MyLinkList::texts() const
{
    QStringList texts;
    for (const sSection_t& section : m_sections) {
        if (!section.links.isEmpty() && !section.title.isEmpty())
            texts.append(section.title);
        for (const sLink_t& link : section.links)
            texts.append(link.text);
    }
    return texts;
}

void MyLinkList::showSections()
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
    m_content = new QWidget(this);
    m_content->setObjectName(QStringLiteral("linkListContent"));
    auto* lines = new QVBoxLayout(m_content);
    lines->setContentsMargins(0, 0, 0, 0);
    lines->setSpacing(gap);
    bool isFirst = true;
    for (int i = 0; i < m_sections.size(); ++i) {
        const sSection_t& section = m_sections.at(i);
        if (section.links.isEmpty())
            continue;
        if (!isFirst)
            lines->addSpacing(sectionGap);
        isFirst = false;
        if (!section.title.isEmpty())
            lines->addWidget(new MySectionTitle(section.title, m_content));
        for (int line = 0; line < section.links.size(); ++line)
            lines->addWidget(makeLine(i, line, m_content));
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

/// What a link of the present lines does: what it is for when it is used. It may delete this list.
std::function<void()> MyLinkList::run(int section, int line, std::function<void()> sLink_t::*what)
{
    return [this, section, line, what, content = m_content] {
        // Lines that are no longer shown live on for a moment.
        if (content != m_content)
            return;
        const sLink_t link = m_sections.value(section).links.value(line);
        if (link.*what)
            (link.*what)();
    };
}

QWidget* MyLinkList::makeLine(int section, int index, QWidget* parent)
{
    const sLink_t& link = m_sections.at(section).links.at(index);
    auto* line = new QWidget(parent);
    auto* row = new QHBoxLayout(line);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2 * gap);
    QWidget* text = nullptr;
    if (link.act) {
        auto* button = new MyLinkButton(link.text, line);
        connect(button, &QPushButton::clicked, this, run(section, index, &sLink_t::act));
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
        connect(remove, &QToolButton::clicked, this, run(section, index, &sLink_t::remove));
        row->addWidget(remove);
    }
    return line;
}
