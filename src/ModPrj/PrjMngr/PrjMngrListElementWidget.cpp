#include "PrjMngrListElementWidget.h"

#include "MyButton.h"
#include "MyElidedLabel.h"
#include "MyFieldTitle.h"

#include <QDir>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QMouseEvent>

namespace nsModPrj {

namespace {

const int maxPathLength = 40; ///< characters of the path that are shown
const int maxToolTipLength = 2000;
const int margin = 12;
const int gap = 4;

MyElidedLabel* makeLine(const char* name, QWidget* parent)
{
    auto* line = new MyElidedLabel(Qt::ElideRight, parent);
    line->setObjectName(QLatin1String(name));
    return line;
}

/// A tool tip for a text of a project file, which must not be interpreted as rich text.
QString toolTipOf(const QString& text)
{
    return QStringLiteral("<p>%1</p>").arg(text.left(maxToolTipLength).toHtmlEscaped());
}

} // namespace

PrjMngrListElementWidget::PrjMngrListElementWidget(QWidget* parent)
    : QFrame(parent)
    , m_title(makeLine("prjViewTitle", this))
    , m_version(makeLine("prjViewVersion", this))
    , m_comment(makeLine("prjViewComment", this))
    , m_path(makeLine("prjViewPath", this))
    , m_remove(new MyButton(tr("Remove from collection"), this))
    , m_open(new MyButton(tr("Open"), this))
{
    setObjectName(QStringLiteral("prjView"));
    setToolTip(tr("A double click opens the project"));
    m_remove->setShortText(tr("Remove"));
    m_remove->setToolTip(tr("Takes the project off this list; its files stay"));
    m_open->setToolTip(tr("Opens the project"));

    auto* buttonLine = new QFrame(this);
    buttonLine->setObjectName(QStringLiteral("prjViewButtonLine"));
    auto* buttons = new QHBoxLayout(buttonLine);
    buttons->setContentsMargins(0, gap, 0, 0);
    buttons->setSpacing(2 * gap);
    buttons->addStretch(1);
    buttons->addWidget(m_remove);
    buttons->addWidget(m_open);

    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setHorizontalSpacing(2 * gap);
    layout->setVerticalSpacing(gap);
    layout->setColumnStretch(1, 1);
    layout->addWidget(m_title, 0, 0, 1, 2);
    layout->addWidget(new MyFieldTitle(tr("Version:"), this), 1, 0);
    layout->addWidget(m_version, 1, 1);
    layout->addWidget(new MyFieldTitle(tr("Comment:"), this), 2, 0);
    layout->addWidget(m_comment, 2, 1);
    layout->addWidget(new MyFieldTitle(tr("Project file:"), this), 3, 0);
    layout->addWidget(m_path, 3, 1);
    layout->addWidget(buttonLine, 4, 0, 1, 2);

    connect(m_remove, &QPushButton::clicked, this, [this] { emit remove(this); });
    connect(m_open, &QPushButton::clicked, this, [this] { emit open(this); });
}

void PrjMngrListElementWidget::setPrjInfo(const QString& file, const QString& title, const QString& version,
                                          const QString& comment)
{
    m_prjFile = file;
    m_title->setText(title.isEmpty() ? tr("Title: No title set") : title.simplified());
    m_version->setText(version.isEmpty() ? tr("No version set") : version.simplified());
    m_comment->setText(comment.simplified());
    m_title->setToolTip(toolTipOf(m_title->text()));
    m_comment->setToolTip(toolTipOf(m_comment->text()));
    m_path->setText(file.size() <= maxPathLength ? file : QStringLiteral("...") + file.right(maxPathLength));
    m_path->setToolTip(toolTipOf(QDir::toNativeSeparators(file)));
    const QString name = m_title->text();
    m_open->setAccessibleName(QStringLiteral("%1: %2").arg(m_open->text(), name));
    m_remove->setAccessibleName(QStringLiteral("%1: %2").arg(m_remove->text(), name));
}

QWidget* PrjMngrListElementWidget::firstField() const
{
    return m_remove;
}

QWidget* PrjMngrListElementWidget::lastField() const
{
    return m_open;
}

void PrjMngrListElementWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        emit open(this);
    else
        QFrame::mouseDoubleClickEvent(event);
}

} // namespace nsModPrj
