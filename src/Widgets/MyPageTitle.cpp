#include "MyPageTitle.h"

#include <QFrame>
#include <QLabel>
#include <QVBoxLayout>

MyPageTitle::MyPageTitle(QWidget* parent)
    : MyPageTitle(QString(), parent)
{
}

MyPageTitle::MyPageTitle(const QString& text, QWidget* parent)
    : QWidget(parent)
    , m_label(new QLabel(text, this))
{
    setObjectName(QStringLiteral("pageTitle"));
    auto* line = new QFrame(this);
    line->setObjectName(QStringLiteral("pageTitleUnderline"));
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(m_label);
    layout->addWidget(line);
}

void MyPageTitle::setText(const QString& text)
{
    m_label->setText(text);
}

QString MyPageTitle::text() const
{
    return m_label->text();
}
