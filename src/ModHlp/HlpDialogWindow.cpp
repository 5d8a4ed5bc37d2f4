#include "HlpDialogWindow.h"

#include "HlpWidget.h"

#include <QVBoxLayout>

namespace nsModHlp {

namespace {

const QSize startSize(760, 620);

} // namespace

HlpDialogWindow::HlpDialogWindow(HlpSourceIf* source, QWidget* dialog)
    : QDialog(dialog)
    , m_page(new HlpWidget(source, this))
{
    setObjectName(QStringLiteral("hlpDialogWindow"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    setWindowTitle(tr("Help page"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_page);
    resize(startSize);
    connect(m_page, &HlpWidget::titleChanged, this, [this](QWidget*, const QString& title) { setWindowTitle(title); });
    m_page->setFocus();
}

} // namespace nsModHlp
