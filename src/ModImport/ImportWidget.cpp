#include "ImportWidget.h"

#include "ImportEditorWidget.h"
#include "ImportFilterIf.h"

#include "FilterText.h"
#include "ModMsgHookIf.h"
#include "MyButton.h"
#include "MyButtonOpenFile.h"
#include "MyFieldTitle.h"
#include "MyPageLayout.h"
#include "MySectionTitle.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QProgressBar>
#include <QScrollArea>
#include <QShortcut>
#include <QSpinBox>
#include <QStyle>
#include <QVBoxLayout>

namespace nsModImport {

namespace {

enum eRow_t { rowTitle, rowFile, rowTab, rowSyntax, rowDescription, rowText, rowButtons };
enum eColumn_t { columnSource = 0, columnGap = 2, columnDestination = 3, columnCount = 5 };

const int gap = 8;
const int halfGap = 24;       ///< pixels between the two sides
const int dfltTabIndent = 4;  ///< characters
const int minViewHeight = 80; ///< pixels
const int minWidth = 60;
const int minFilterLength = 9; ///< characters

} // namespace

ImportWidget::ImportWidget(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("importPage"));
    // In a small window the page scrolls instead of taking the room of the docks.
    auto* area = new QScrollArea(this);
    area->setAccessibleName(tr("Settings of the import"));
    area->setFrameStyle(QFrame::NoFrame);
    area->setWidgetResizable(true);
    auto* content = new QWidget;
    area->setWidget(content);
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(area);
    auto* layout = new MyPageLayout(content, tr("Import files"));
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(gap);
    grid->setVerticalSpacing(gap);
    grid->setColumnMinimumWidth(columnGap, halfGap - 2 * gap);
    grid->setColumnStretch(columnSource + 1, 1);
    grid->setColumnStretch(columnDestination + 1, 1);
    grid->setRowStretch(rowText, 1);
    layoutSource(grid);
    layoutDestination(grid);
    layoutButtons(grid);
    layout->addFill(grid);
    setFocusProxy(m_select);
    initFilter();
    connectControls();
    restart();
}

// --- the page ---

void ImportWidget::addTitled(QGridLayout* grid, int row, int column, const QString& title, QWidget* field)
{
    auto* label = new MyFieldTitle(title, this);
    label->setBuddy(field);
    label->setToolTip(field->toolTip());
    grid->addWidget(label, row, column);
}

QSpinBox* ImportWidget::tabSpinBox(const QString& name, const QString& toolTip)
{
    auto* box = new QSpinBox(this);
    box->setObjectName(name);
    box->setRange(minTabIndent, maxTabIndent);
    box->setValue(dfltTabIndent);
    box->setToolTip(toolTip);
    return box;
}

QPushButton* ImportWidget::button(const QString& name, const QString& text, const QString& toolTip)
{
    auto* result = new MyButton(text, this);
    result->setObjectName(name);
    result->setToolTip(toolTip);
    return result;
}

void ImportWidget::layoutSource(QGridLayout* grid)
{
    grid->addWidget(new MySectionTitle(tr("Source file"), this), rowTitle, columnSource, 1, 2);
    m_path = new QLineEdit(this);
    m_path->setObjectName(QStringLiteral("importPath"));
    m_path->setReadOnly(true);
    m_path->setToolTip(tr("The file that is converted"));
    m_select = new MyButtonOpenFile(this);
    m_select->setToolTip(tr("Select an assembler file to import"));
    m_select->setAccessibleName(m_select->toolTip());
    auto* file = new QHBoxLayout;
    file->setSpacing(gap / 2);
    file->addWidget(m_path, 1);
    file->addWidget(m_select);
    addTitled(grid, rowFile, columnSource, tr("Source file:"), m_path);
    grid->addLayout(file, rowFile, columnSource + 1);

    m_srcTabIndent = tabSpinBox(QStringLiteral("importSrcTab"), tr("Width of a tab in the source, in characters"));
    addTitled(grid, rowTab, columnSource, tr("Tab space:"), m_srcTabIndent);
    grid->addWidget(m_srcTabIndent, rowTab, columnSource + 1, Qt::AlignLeft);

    m_filters = new QComboBox(this);
    m_filters->setObjectName(QStringLiteral("importFilters"));
    m_filters->setToolTip(tr("The language that the source is written in"));
    // The longest name does not decide how wide the page is.
    m_filters->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_filters->setMinimumContentsLength(minFilterLength);
    m_filters->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    addTitled(grid, rowSyntax, columnSource, tr("Syntax:"), m_filters);
    grid->addWidget(m_filters, rowSyntax, columnSource + 1);

    m_description = new QLabel(this);
    m_description->setObjectName(QStringLiteral("pageHint"));
    m_description->setTextFormat(Qt::PlainText);
    m_description->setWordWrap(true);
    grid->addWidget(m_description, rowDescription, columnSource, 1, columnCount);

    m_source = new ImportEditorWidget(this);
    m_source->setObjectName(QStringLiteral("importSource"));
    m_source->setAccessibleName(tr("Source file"));
    m_source->setReadOnly(true);
    m_source->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_source->setCursorHighlightingEn(false);
    m_source->setMinimumSize(minWidth, minViewHeight);
    grid->addWidget(m_source, rowText, columnSource, 1, 2);

    m_restart = button(QStringLiteral("importRestart"), tr("&Restart"), tr("Begin again at the first line"));
    m_convertLine = button(QStringLiteral("importConvertLine"), tr("&Convert line"), tr("Convert the next line"));
    m_convertAll = button(QStringLiteral("importConvertAll"), tr("Convert &all"),
                          tr("Convert up to the end, or to the first line that can not be converted"));
}

void ImportWidget::layoutDestination(QGridLayout* grid)
{
    grid->addWidget(new MySectionTitle(tr("Destination file"), this), rowTitle, columnDestination, 1, 2);
    m_dstTabIndent = tabSpinBox(QStringLiteral("importDstTab"), tr("Width of a tab in the result, in characters"));
    addTitled(grid, rowTab, columnDestination, tr("Tab space:"), m_dstTabIndent);
    grid->addWidget(m_dstTabIndent, rowTab, columnDestination + 1, Qt::AlignLeft);

    m_program = button(QStringLiteral("importProgram"), tr("Import &program..."),
                       tr("Make a project of a whole program with the files that it includes, or of an image"));
    grid->addWidget(m_program, rowSyntax, columnDestination, 1, 2, Qt::AlignRight);

    m_destination = new ImportEditorWidget(this);
    m_destination->setObjectName(QStringLiteral("importDestination"));
    m_destination->setAccessibleName(tr("Destination file"));
    m_destination->setMinimumSize(minWidth, minViewHeight);
    grid->addWidget(m_destination, rowText, columnDestination, 1, 2);

    m_progress = new QProgressBar(this);
    m_progress->setObjectName(QStringLiteral("importProgress"));
    m_progress->setAccessibleName(tr("Converted lines"));
    m_progress->setMinimumWidth(minWidth);
    m_stop = button(QStringLiteral("importStop"), tr("&Stop"), tr("End the conversion here (Esc)"));
    // They take the place of the other button during a conversion.
    m_progress->hide();
    m_stop->hide();
    m_useFile =
        button(QStringLiteral("importUse"), tr("Use converted file"), tr("Open the converted file as a new document"));
}

void ImportWidget::layoutButtons(QGridLayout* grid)
{
    auto* left = new QHBoxLayout;
    left->setSpacing(gap);
    for (QPushButton* one : {m_restart, m_convertLine, m_convertAll})
        left->addWidget(one);
    left->addStretch(1);
    auto* right = new QHBoxLayout;
    right->setSpacing(gap);
    right->addStretch(1);
    right->addWidget(m_progress, 1);
    right->addWidget(m_stop);
    right->addWidget(m_useFile);
    m_buttons = new QBoxLayout(QBoxLayout::TopToBottom);
    m_buttons->setSpacing(gap);
    m_buttons->addLayout(left);
    m_buttons->addLayout(right);
    grid->addLayout(m_buttons, rowButtons, columnSource, 1, columnCount);
}

/// Between two docks the buttons of both sides have no room side by side.
void ImportWidget::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    int needed = gap + style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 4 * gap;
    for (int i = 0; i < m_buttons->count(); ++i)
        needed += m_buttons->itemAt(i)->minimumSize().width();
    m_buttons->setDirection(width() < needed ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
}

void ImportWidget::connectControls()
{
    connect(m_select, &QPushButton::clicked, this, &ImportWidget::selectFile);
    connect(m_srcTabIndent, QOverload<int>::of(&QSpinBox::valueChanged), this, &ImportWidget::setSrcTabIndent);
    connect(m_dstTabIndent, QOverload<int>::of(&QSpinBox::valueChanged), this, &ImportWidget::setDstTabIndent);
    connect(m_filters, QOverload<const QString&>::of(&QComboBox::currentIndexChanged), this,
            &ImportWidget::applyImportFilter);
    connect(m_restart, &QPushButton::clicked, this, &ImportWidget::restart);
    connect(m_convertLine, &QPushButton::clicked, this, &ImportWidget::convertLine);
    connect(m_convertAll, &QPushButton::clicked, this, &ImportWidget::convertAll);
    connect(m_stop, &QPushButton::clicked, this, &ImportWidget::stop);
    connect(m_useFile, &QPushButton::clicked, this, QOverload<>::of(&ImportWidget::useFile));
    connect(m_program, &QPushButton::clicked, this, &ImportWidget::importProgramRequested);
    auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    escape->setContext(Qt::WidgetWithChildrenShortcut);
    connect(escape, &QShortcut::activated, this, &ImportWidget::stop);
}

void ImportWidget::setPrjPath(const QString& path)
{
    prjPath = path;
}

void ImportWidget::setSrcTabIndent(int indent)
{
    m_source->setTabIndent(indent);
}

void ImportWidget::setDstTabIndent(int indent)
{
    m_destination->setTabIndent(indent);
}

// --- filter ---

void ImportWidget::initFilter()
{
    filterList = new ImportFilter(this);
    m_filters->addItem(tr("Please select an import filter"));
    m_filters->addItems(filterList->filterNames());
}

bool ImportWidget::setImportFilter(const QString& name)
{
    const int index = m_filters->findText(name, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index < 0)
        return false;
    m_filters->setCurrentIndex(index);
    return true;
}

void ImportWidget::applyImportFilter(QString name)
{
    if (filter != nullptr)
        filter->clearRules();
    filter = filterList->filter(name);
    m_description->setText(filter != nullptr ? filter->description() : QString());
    if (filter != nullptr)
        filter->setupRules();
    restart();
}

// --- source ---

void ImportWidget::selectFile()
{
    // The page can be deleted while the dialog is open, and the dialog with it.
    const QPointer<QFileDialog> dialog(new QFileDialog(this, tr("Select an assembler file to import"), prjPath));
    dialog->setNameFilters({tr("Any files(*)")});
    dialog->setDefaultSuffix(QStringLiteral("nalvo"));
    dialog->setViewMode(QFileDialog::List);
    dialog->setAcceptMode(QFileDialog::AcceptOpen);
    dialog->setFileMode(QFileDialog::ExistingFiles);
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (!dialog)
        return;
    const QStringList selected = dialog->selectedFiles();
    delete dialog;
    if (accepted && selected.size() == 1)
        openFile(selected.constFirst());
}

bool ImportWidget::openFile(const QString& path)
{
    m_path->setText(path);
    m_path->setToolTip(path);
    QByteArray bytes;
    const eFileRead_t read = readTextFile(QDir(prjPath).absoluteFilePath(path), &bytes);
    if (read == fileTooLarge)
        showError(tr("The file is too large to be a source: ") + path);
    if (read != fileRead)
        return false;
    const QString text = importText(bytes);
    const int line = longLine(text);
    if (line > 0) {
        showError(tr("Line %1 is too long for a source: ").arg(line) + path);
        return false;
    }
    m_source->setText(text);
    m_hasSource = true;
    // Both sides get as much room for their numbers as the source needs.
    m_source->setLeftMarginMinimumWidth(0);
    m_destination->setLeftMarginMinimumWidth(0);
    const int width = m_source->leftMarginWidth();
    m_source->setLeftMarginMinimumWidth(width);
    m_destination->setLeftMarginMinimumWidth(width);
    restart();
    return true;
}

/// Number of the first line that is too long to be shown and converted in bounded time, from 1 on; 0 for none.
int ImportWidget::longLine(const QString& text)
{
    int number = 1;
    for (int start = 0; start < text.size(); ++number) {
        const int feed = text.indexOf('\n', start);
        const int end = feed < 0 ? text.size() : feed;
        if (end - start > maxLineLength)
            return number;
        start = end + 1;
    }
    return 0;
}

// --- conversion ---

void ImportWidget::updateButtons()
{
    const bool isReady = m_hasSource && m_filters->currentIndex() != 0 && !m_isConverting;
    for (QPushButton* one : {m_restart, m_convertLine, m_convertAll})
        one->setEnabled(isReady);
}

void ImportWidget::restart()
{
    stop();
    updateButtons();
    m_useFile->setEnabled(false);
    lineNo = 0;
    m_source->clearLineHighlighted();
    m_source->setLineHighlighted(0);
    m_source->clearLineHighlighted();
    m_destination->setText(QString());
}

void ImportWidget::stop()
{
    ++m_run;
}

void ImportWidget::showError(const QString& text)
{
    if (modMsgHook != nullptr)
        modMsgHook->showErrorMessage(text);
}

ImportWidget::eStep_t ImportWidget::convertNext(QStringList* result)
{
    QString line;
    if (!m_source->line(lineNo++, &line)) {
        m_useFile->setEnabled(true);
        return stepEnd;
    }
    const bool isConverted = filter == nullptr || filter->convertLine(&line);
    result->append(line);
    if (isConverted)
        return stepConverted;
    if (!filter->problem().isEmpty())
        showError(filter->problem());
    showError(tr("Can not convert line. Please convert manually"));
    return stepFailed;
}

void ImportWidget::convertLine()
{
    if (m_isConverting)
        return;
    QStringList lines;
    if (convertNext(&lines) == stepEnd)
        return;
    m_source->setLineHighlighted(lineNo);
    m_destination->appendLines(lines);
}

void ImportWidget::convertAll()
{
    if (m_isConverting)
        return;
    const QPointer<ImportWidget> self(this);
    const int run = ++m_run;
    const bool hadFocus = m_convertAll->hasFocus();
    m_isConverting = true;
    updateButtons();
    eStep_t step = stepConverted;
    while (step == stepConverted) {
        QStringList lines;
        QElapsedTimer slice;
        slice.start();
        do
            step = convertNext(&lines);
        while (step == stepConverted && slice.elapsed() < m_sliceTime);
        showProgress(lines, step);
        if (step != stepConverted)
            break;
        // The user may have begun anew, stopped the conversion or closed the page after this.
        QCoreApplication::processEvents();
        if (!self)
            return;
        if (run != m_run)
            break;
    }
    endOfRun(hadFocus);
}

/// Shows what a part of a conversion has brought, and how far it is.
void ImportWidget::showProgress(const QStringList& lines, eStep_t last)
{
    m_destination->appendLines(lines);
    if (last != stepEnd)
        m_source->setLineHighlighted(lineNo);
    else
        m_source->clearLineHighlighted();
    if (last != stepConverted)
        return;
    m_progress->setRange(0, m_source->blockCount());
    m_progress->setValue(lineNo);
    m_useFile->hide();
    m_progress->show();
    m_stop->show();
}

void ImportWidget::endOfRun(bool hadFocus)
{
    const bool giveBack = hadFocus && (isAncestorOf(QWidget::focusWidget()) || m_stop->hasFocus());
    m_isConverting = false;
    updateButtons();
    m_progress->hide();
    m_stop->hide();
    m_useFile->show();
    // A button that is disabled loses the focus, and the user would have to look for it.
    if (giveBack && m_convertAll->isEnabled() && isVisible())
        m_convertAll->setFocus();
}

void ImportWidget::useFile()
{
    emit useFile(m_destination->text());
}

} // namespace nsModImport
