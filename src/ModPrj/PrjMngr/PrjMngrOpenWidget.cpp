#include "PrjMngrOpenWidget.h"

#include "PrjMngrFile.h"

#include "MyButton.h"
#include "MyFieldTitle.h"
#include "MyFileSelectOpen.h"
#include "MyPathEdit.h"

#include <QFileInfo>
#include <QGridLayout>
#include <QVBoxLayout>

namespace nsModPrj {

PrjMngrOpenWidget::PrjMngrOpenWidget(QWidget* parent)
    : QWidget(parent)
    , m_file(new MyFileSelectOpen(this))
    , m_add(new MyButton(tr("Add project to collection"), this))
    , m_open(new MyButton(tr("Open project"), this))
{
    setObjectName(QStringLiteral("prjMngrOpen"));
    m_file->setObjectName(QStringLiteral("prjMngrOpenFile"));
    m_file->setWindowTitle(tr("Select project file to open"));
    m_file->setDescription(tr("File of an existing project"));
    PrjMngrFile::setup(m_file);
    m_add->setShortText(tr("Add to collection"));
    m_add->setToolTip(tr("Lists the project below"));
    m_open->setToolTip(tr("Opens the project"));

    auto* title = new MyFieldTitle(tr("Project file:"), this);
    title->setBuddy(m_file);
    // One below the other, as on the page beside it: a window of the smallest size has no room for both in a line.
    auto* buttons = new QVBoxLayout;
    buttons->setSpacing(8);
    buttons->addWidget(m_open);
    buttons->addWidget(m_add);
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(title, 0, 0);
    layout->addWidget(m_file, 0, 1);
    layout->addLayout(buttons, 1, 0, 1, 2, Qt::AlignLeft);
    setFocusProxy(m_file);
    setTabOrder(m_open, m_add);

    connect(m_file, &MyFileSelectOpen::fileValid, this, &PrjMngrOpenWidget::setFileValid);
    connect(m_file->pathEdit(), &QLineEdit::returnPressed, this, &PrjMngrOpenWidget::hndlReturn);
    connect(m_add, &QPushButton::clicked, this, &PrjMngrOpenWidget::requestAdd);
    connect(m_open, &QPushButton::clicked, this, &PrjMngrOpenWidget::requestOpen);
    setFileValid(false);
}

void PrjMngrOpenWidget::setFileValid(bool valid)
{
    m_add->setEnabled(valid);
    m_open->setEnabled(valid);
}

void PrjMngrOpenWidget::requestAdd()
{
    emit add(QFileInfo(m_file->file()).absoluteFilePath());
}

void PrjMngrOpenWidget::requestOpen()
{
    emit open(QFileInfo(m_file->file()).absoluteFilePath());
}

void PrjMngrOpenWidget::hndlReturn()
{
    if (m_file->isValid())
        requestOpen();
}

} // namespace nsModPrj
