#include "SourcesConfigPage.h"

#include "MyButton.h"
#include "MyPageLayout.h"
#include "SchemeIcons.h"
#include "SourcesListWidget.h"

#include <QFileDialog>
#include <QHBoxLayout>
#include <QMessageBox>
#include <QPointer>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

namespace nsModSources {

namespace {

const int gap = 8;

/// Is the file outside of the folder that the path is relative to?
bool leadsOut(const QString& relPath)
{
    return QDir::isAbsolutePath(relPath) || relPath == QLatin1String("..") || relPath.startsWith(QLatin1String("../"));
}

} // namespace

SourcesConfigPage::SourcesConfigPage(QWidget* parent)
    : QWidget(parent)
    , m_layout(new MyPageLayout(this, tr("Sources configuration")))
    , m_list(new SourcesListWidget)
{
    setObjectName(QStringLiteral("sourcesConfigPage"));
    m_list->setObjectName(QStringLiteral("sourcesList"));
    m_list->setAccessibleName(tr("Source files"));
    m_list->setToolTip(tr("The assembler reads the files in this order. Drag them, or press Ctrl+Up and Ctrl+Down, to "
                          "change it; Delete removes a file from the project."));
    m_list->setEmptyText(tr("The project has no source files yet.\nAdd files, or drop them here. The assembler reads "
                            "them in the order of this list, as one program."));
    connect(m_list, &QListWidget::itemSelectionChanged, this, &SourcesConfigPage::updateButtons);
    connect(m_list, &SourcesListWidget::orderChanged, this, &SourcesConfigPage::updateButtons);
    connect(m_list, &SourcesListWidget::removeRequested, this, &SourcesConfigPage::removeFile);
    connect(m_list, &SourcesListWidget::moveUpRequested, this, &SourcesConfigPage::moveUp);
    connect(m_list, &SourcesListWidget::moveDownRequested, this, &SourcesConfigPage::moveDown);
    connect(m_list, &SourcesListWidget::filesDropped, this, &SourcesConfigPage::addFiles);

    auto* row = new QHBoxLayout;
    row->setSpacing(gap);
    row->addWidget(m_list, 1);
    auto* buttons = new QVBoxLayout;
    buttons->setSpacing(gap);
    buttons->addWidget(makeButton(tr("Add..."), tr("Adds files that lie beneath the project folder"), SLOT(addFile())));
    m_remove = makeButton(tr("Remove"), tr("Takes the selected files out of the project; they stay on the disk (Del)"),
                          SLOT(removeFile()));
    buttons->addWidget(m_remove);
    buttons->addSpacing(gap);
    m_up = makeButton(tr("Up"), tr("Moves the selected files up, so that they are read earlier (Ctrl+Up)"),
                      SLOT(moveUp()));
    buttons->addWidget(m_up);
    m_down = makeButton(tr("Down"), tr("Moves the selected files down, so that they are read later (Ctrl+Down)"),
                        SLOT(moveDown()));
    buttons->addWidget(m_down);
    buttons->addStretch(1);
    row->addLayout(buttons);

    m_layout->addSection(tr("Source files"));
    m_layout->addFill(row);
    updateButtons();
    setPrjConfigEnabled(false);
}

QPushButton* SourcesConfigPage::makeButton(const QString& text, const QString& toolTip, const char* slot)
{
    auto* button = new MyButton(text, this);
    button->setToolTip(toolTip);
    connect(button, SIGNAL(clicked()), this, slot);
    return button;
}

// --- values ---

void SourcesConfigPage::setConfig(const QStringList& files, const QDir& prjDir)
{
    m_prjDir = prjDir;
    m_list->clear();
    for (const QString& file : files)
        append(file);
    updateButtons();
}

QStringList SourcesConfigPage::files() const
{
    QStringList result;
    for (int row = 0; row < m_list->count(); ++row)
        result.append(m_list->item(row)->data(Qt::UserRole).toString());
    return result;
}

void SourcesConfigPage::insertFile(const QString& path)
{
    if (!isInList(path))
        append(path);
}

void SourcesConfigPage::dropFile(const QString& path)
{
    const QString clean = QDir::cleanPath(path);
    for (int row = 0; row < m_list->count(); ++row) {
        if (m_list->item(row)->data(Qt::UserRole).toString() == clean) {
            delete m_list->takeItem(row);
            return;
        }
    }
}

void SourcesConfigPage::append(const QString& path)
{
    const QString clean = QDir::cleanPath(path);
    auto* item = new QListWidgetItem(m_prjDir.relativeFilePath(clean), m_list);
    item->setData(Qt::UserRole, clean);
    item->setToolTip(QDir::toNativeSeparators(clean));
}

bool SourcesConfigPage::isInList(const QString& path) const
{
    return files().contains(QDir::cleanPath(path));
}

void SourcesConfigPage::updateButtons()
{
    const QList<int> rows = m_list->selectedRows();
    const bool any = !rows.isEmpty();
    // Selected rows that are at the end of the list already can not be moved further.
    enableButton(m_remove, any);
    enableButton(m_up, any && rows.last() >= rows.size());
    enableButton(m_down, any && rows.first() < m_list->count() - rows.size());
}

void SourcesConfigPage::enableButton(QPushButton* button, bool enabled)
{
    // Else the focus would move to the next button, and the next key press would trigger that one.
    if (!enabled && button->hasFocus())
        m_list->setFocus();
    button->setEnabled(enabled);
}

// --- buttons ---

void SourcesConfigPage::addFile()
{
    const QPointer<SourcesConfigPage> self(this);
    const QPointer<QFileDialog> dialog(new QFileDialog(this, tr("Select psm template file"), m_prjDir.path()));
    dialog->setNameFilters({tr("PSM files(*.psm)")});
    dialog->setViewMode(QFileDialog::Detail);
    dialog->setAcceptMode(QFileDialog::AcceptOpen);
    dialog->setFileMode(QFileDialog::ExistingFiles);
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (!self || !dialog)
        return;
    const QStringList selected = dialog->selectedFiles();
    delete dialog;
    if (accepted)
        addFiles(selected);
}

void SourcesConfigPage::addFiles(const QStringList& paths)
{
    const QPointer<SourcesConfigPage> self(this);
    for (const QString& path : paths) {
        const QString file = pathBeneathPrj(path);
        if (file.isEmpty())
            refuse(path, tr("Only files located beneath the project folder could be added to the project."));
        else if (isInList(file))
            refuse(path, tr("File is already added to the project."));
        else
            append(file);
        if (!self)
            return;
    }
    updateButtons();
}

QString SourcesConfigPage::pathBeneathPrj(const QString& path) const
{
    const QString plain = m_prjDir.relativeFilePath(QDir::cleanPath(path));
    if (!leadsOut(plain))
        return QDir::cleanPath(m_prjDir.absoluteFilePath(plain));
    // A folder can have several paths if there are links.
    const QString canonical = QDir(m_prjDir.canonicalPath()).relativeFilePath(QFileInfo(path).canonicalFilePath());
    if (m_prjDir.canonicalPath().isEmpty() || canonical.isEmpty() || leadsOut(canonical))
        return QString();
    return QDir::cleanPath(m_prjDir.absoluteFilePath(canonical));
}

void SourcesConfigPage::refuse(const QString& path, const QString& reason)
{
    // On the heap, as the page can be deleted while the box is open, and deletes the box.
    const QPointer<QMessageBox> box(new QMessageBox(QMessageBox::Warning, tr("Adding file"),
                                                    path + QLatin1String(": \n\n") + reason, QMessageBox::Ok, this));
    box->setTextFormat(Qt::PlainText);
    box->exec();
    delete box;
}

void SourcesConfigPage::removeFile()
{
    const QList<int> rows = m_list->selectedRows();
    const QSignalBlocker blocker(m_list);
    for (auto it = rows.crbegin(); it != rows.crend(); ++it)
        delete m_list->takeItem(*it);
    // Selects the next file, so that several can be removed one after the other.
    if (!rows.isEmpty() && m_list->count() > 0)
        m_list->setCurrentRow(qMin(rows.first(), m_list->count() - 1));
    updateButtons();
}

void SourcesConfigPage::moveUp()
{
    moveSelection(-1);
}

void SourcesConfigPage::moveDown()
{
    moveSelection(1);
}

void SourcesConfigPage::moveSelection(int step)
{
    QList<int> rows = m_list->selectedRows();
    QListWidgetItem* current = m_list->currentItem();
    // The row nearest to the end is moved first. A row that can not move further stops the ones after it.
    if (step > 0)
        std::reverse(rows.begin(), rows.end());
    int border = step < 0 ? 0 : m_list->count() - 1;
    // The buttons are updated once at the end, not after each step.
    const QSignalBlocker blocker(m_list);
    for (int row : qAsConst(rows)) {
        const int target = step < 0 ? qMax(row - 1, border) : qMin(row + 1, border);
        border = target - step;
        if (target == row)
            continue;
        QListWidgetItem* item = m_list->takeItem(row);
        m_list->insertItem(target, item);
        item->setSelected(true);
    }
    if (current != nullptr) {
        m_list->setCurrentItem(current, QItemSelectionModel::NoUpdate);
        m_list->scrollToItem(current);
    }
    updateButtons();
}

// --- page ---

QWidget* SourcesConfigPage::pageWidget()
{
    return this;
}

QIcon SourcesConfigPage::pageIcon()
{
    return SchemeIcons::of(QStringLiteral(":/ModSources/img/configPage/configPageSources.png"));
}

QString SourcesConfigPage::pageTitle()
{
    return tr("Sources");
}

QString SourcesConfigPage::pageHelpRef()
{
    return QStringLiteral("pageId://configPageSources");
}

void SourcesConfigPage::setPrjConfigEnabled(bool enabled)
{
    m_enabled = enabled;
    m_layout->setPrjConfigEnabled(enabled);
}

bool SourcesConfigPage::pageIsEnabled()
{
    return m_enabled;
}

void SourcesConfigPage::setFocus(bool) {}

void SourcesConfigPage::setDefaultConfig()
{
    // The files of a project have no default value.
}

bool SourcesConfigPage::checkConfig()
{
    return true;
}

} // namespace nsModSources
