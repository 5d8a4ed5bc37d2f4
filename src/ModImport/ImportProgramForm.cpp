#include "ImportProgramForm.h"

#include "ImportFolderList.h"

#include "MyFieldTitle.h"
#include "MyFileSelectOpen.h"
#include "MyFolderSelect.h"
#include "MyPathEdit.h"
#include "ProgramJob.h"
#include "RescueJob.h"

#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>
#include <QVBoxLayout>

namespace nsModImport {

using nsImport::ProgramJob;
using nsImport::RescueJob;

namespace {

const int gap = 8;

void selectData(QComboBox* box, const QString& data)
{
    box->setCurrentIndex(qMax(0, box->findData(data)));
}

} // namespace

ImportProgramForm::ImportProgramForm(QWidget* parent)
    : QWidget(parent)
    , m_tabs(new QTabWidget(this))
{
    m_tabs->setObjectName(QStringLiteral("importProgramTabs"));
    m_tabs->addTab(makeSourcesTab(), tr("From &sources"));
    m_tabs->addTab(makeImageTab(), tr("From an &image"));
    m_tabs->setTabToolTip(0, tr("A program for another assembler, with all files that it includes"));
    m_tabs->setTabToolTip(1, tr("The content of a program memory, where the sources are lost"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_tabs);
    setFocusProxy(m_source);

    connect(m_source, &MyFileSelectOpen::fileValid, this, [this] {
        m_folders->setStartFolder(QFileInfo(m_source->file()).absolutePath());
        follow(m_source->file(), &m_sourceTarget);
    });
    connect(m_image, &MyFileSelectOpen::fileValid, this, [this] { follow(m_image->file(), &m_imageTarget); });
    for (MyFileSelect* select : {static_cast<MyFileSelect*>(m_source), static_cast<MyFileSelect*>(m_reference),
                                 static_cast<MyFileSelect*>(m_image), static_cast<MyFileSelect*>(m_sourceTarget.select),
                                 static_cast<MyFileSelect*>(m_imageTarget.select)})
        connect(select, &MyFileSelect::fileValid, this, &ImportProgramForm::changed);
    connect(m_folders, &ImportFolderList::changed, this, &ImportProgramForm::changed);
    for (QComboBox* box : {m_dialect, m_processor})
        connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &ImportProgramForm::changed);
    connect(m_tabs, &QTabWidget::currentChanged, this, &ImportProgramForm::changed);
}

void ImportProgramForm::addField(QGridLayout* grid, const QString& title, QWidget* field, const QString& toolTip)
{
    auto* label = new MyFieldTitle(title, this);
    label->setBuddy(field);
    label->setToolTip(toolTip);
    field->setToolTip(toolTip);
    if (auto* select = qobject_cast<MyFileSelect*>(field))
        select->setDescription(toolTip);
    const int row = grid->rowCount();
    const bool isHigh = qobject_cast<ImportFolderList*>(field) != nullptr;
    grid->addWidget(label, row, 0, isHigh ? Qt::AlignTop : Qt::AlignVCenter);
    grid->addWidget(field, row, 1);
}

QWidget* ImportProgramForm::makeSourcesTab()
{
    auto* tab = new QWidget;
    auto* grid = new QGridLayout(tab);
    grid->setSpacing(gap);
    grid->setColumnStretch(1, 1);
    m_source = new MyFileSelectOpen(tab);
    m_source->setObjectName(QStringLiteral("importProgramSource"));
    m_source->setWindowTitle(tr("Select the main source of a program"));
    m_dialect = new QComboBox(tab);
    m_dialect->setObjectName(QStringLiteral("importProgramDialect"));
    m_dialect->addItem(tr("Told by the source"), QString());
    for (const ProgramJob::Dialect& dialect : ProgramJob::dialects())
        m_dialect->addItem(dialect.title, dialect.key);
    m_folders = new ImportFolderList(tab);
    m_reference = new MyFileSelectOpen(tab);
    m_reference->setObjectName(QStringLiteral("importProgramReference"));
    m_reference->setWindowTitle(tr("Select the image that the old tool has made"));
    m_sourceTarget.select = makeTarget(tab, QStringLiteral("importProgramFolder"));

    addField(grid, tr("&Main source:"), m_source, tr("The source that includes the others. It is only read."));
    addField(grid, tr("&Dialect:"), m_dialect, tr("The assembler that the program is written for"));
    addField(
        grid, tr("I&nclude folders:"), m_folders,
        tr("Included files are looked for in these folders too, and nothing is read outside of them and the folder "
           "of the program"));
    addField(grid, tr("R&eference image (optional):"), m_reference,
             tr("The result is compared with it word by word: hex, mem, coe, mif, VHDL or Verilog with INIT strings, a "
                "log or a listing. The content tells which it is."));
    addField(grid, tr("&Project folder:"), m_sourceTarget.select,
             tr("Where the project is written; made if it is not there"));
    return tab;
}

QWidget* ImportProgramForm::makeImageTab()
{
    auto* tab = new QWidget;
    auto* grid = new QGridLayout(tab);
    grid->setSpacing(gap);
    grid->setColumnStretch(1, 1);
    m_image = new MyFileSelectOpen(tab);
    m_image->setObjectName(QStringLiteral("importProgramImage"));
    m_image->setWindowTitle(tr("Select the image of a program"));
    m_processor = new QComboBox(tab);
    m_processor->setObjectName(QStringLiteral("importProgramProcessor"));
    for (const QString& key : RescueJob::processorKeys())
        m_processor->addItem(RescueJob::processorName(key), key);
    m_imageTarget.select = makeTarget(tab, QStringLiteral("importProgramImageFolder"));

    addField(grid, tr("&Memory image:"), m_image,
             tr("hex, mem, coe, mif, VHDL or Verilog with INIT strings, a log or a listing. It is only read."));
    addField(grid, tr("P&rocessor:"), m_processor, tr("The processor that runs the program"));
    addField(grid, tr("&Project folder:"), m_imageTarget.select,
             tr("Where the project is written; made if it is not there"));
    auto* hint = new QLabel(tr("The sources get labels at all targets, routines apart, and the words that nothing "
                               "reaches. They are written only if they assemble to this image again."),
                            tab);
    hint->setObjectName(QStringLiteral("pageHint"));
    hint->setWordWrap(true);
    grid->addWidget(hint, grid->rowCount(), 0, 1, 2);
    grid->setRowStretch(grid->rowCount(), 1);
    return tab;
}

MyFolderSelect* ImportProgramForm::makeTarget(QWidget* tab, const QString& name)
{
    auto* select = new MyFolderSelect(tab);
    select->setObjectName(name);
    select->setWindowTitle(tr("Select the folder of the project"));
    return select;
}

// --- what is entered ---

bool ImportProgramForm::isImage() const
{
    return m_tabs->currentIndex() == ImportProgramConfig::modeImage;
}

void ImportProgramForm::setConfig(const ImportProgramConfig& config)
{
    m_tabs->setCurrentIndex(config.mode);
    m_source->setFile(config.source, QString());
    selectData(m_dialect, config.dialect);
    m_folders->setFolders(config.folders);
    m_reference->setFile(config.reference, QString());
    m_image->setFile(config.image, QString());
    selectData(m_processor, config.processor);
    // Where the user has named none they hold what belongs to the source and the image.
    if (!config.folder.isEmpty())
        m_sourceTarget.select->setFile(config.folder, QString());
    if (!config.imageFolder.isEmpty())
        m_imageTarget.select->setFile(config.imageFolder, QString());
}

ImportProgramConfig ImportProgramForm::config() const
{
    ImportProgramConfig config;
    config.mode = m_tabs->currentIndex();
    config.source = m_source->file();
    config.dialect = m_dialect->currentData().toString();
    config.folders = m_folders->folders();
    config.reference = m_reference->file();
    config.folder = m_sourceTarget.select->file();
    config.image = m_image->file();
    config.processor = m_processor->currentData().toString();
    config.imageFolder = m_imageTarget.select->file();
    return config;
}

/// Beside the input, with its name.
QString ImportProgramForm::suggestion(const QString& input)
{
    if (input.isEmpty())
        return QString();
    const QFileInfo info(input);
    const QString folder = info.absolutePath() + '/' + info.completeBaseName();
    // A file without a suffix has this name already.
    const QFileInfo taken(folder);
    return taken.exists() && !taken.isDir() ? folder + QStringLiteral("_nalvo") : folder;
}

void ImportProgramForm::follow(const QString& input, Target* target)
{
    const QString present = target->select->file();
    const bool isOwn = !present.isEmpty() && present != target->suggested;
    target->suggested = suggestion(input);
    if (!isOwn)
        target->select->setFile(target->suggested, QString());
}

QString ImportProgramForm::problem() const
{
    const auto check = [](const MyFileSelectOpen* file, const QString& none) {
        return file->file().isEmpty() ? none : file->pathEdit()->problem();
    };
    QString problem = isImage() ? check(m_image, tr("Choose the image of a program."))
                                : check(m_source, tr("Choose the main source of a program."));
    if (problem.isEmpty() && !isImage())
        problem = check(m_reference, QString());
    const MyFolderSelect* target = isImage() ? m_imageTarget.select : m_sourceTarget.select;
    if (problem.isEmpty() && !target->isValid())
        problem = target->file().isEmpty() ? tr("Choose the folder of the project.") : target->pathEdit()->problem();
    return problem;
}

std::shared_ptr<nsImport::ImportJob> ImportProgramForm::job() const
{
    if (!problem().isEmpty())
        return nullptr;
    const ImportProgramConfig config = this->config();
    // A relative path, as a user may type one, means the folder of the input.
    if (isImage()) {
        const QString folder = QFileInfo(config.image).absoluteDir().absoluteFilePath(config.imageFolder);
        return std::make_shared<RescueJob>(config.image, *RescueJob::processorOf(config.processor), folder);
    }
    ProgramJob::Order order;
    order.source = config.source;
    order.dialect = ProgramJob::dialectOf(config.dialect);
    order.folders = config.folders;
    order.reference = config.reference;
    order.folder = QFileInfo(config.source).absoluteDir().absoluteFilePath(config.folder);
    return std::make_shared<ProgramJob>(order);
}

void ImportProgramForm::takeFile(const QString& path)
{
    (isImage() ? m_image : m_source)->setFile(path, QString());
}

} // namespace nsModImport
