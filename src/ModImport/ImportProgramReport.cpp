#include "ImportProgramReport.h"

#include "ProgramJob.h"
#include "SchemeIcons.h"

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QSplitter>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace nsModImport {

using nsImport::ImageDifference;
using nsImport::ImageProofResult;
using nsImport::ImportJob;
using nsImport::ImportMessage;
using nsImport::ImportOrigin;
using nsImport::ProgramJob;

namespace {

enum eMessageColumn_t { eColumnMessage, eColumnFile, eColumnLine };
enum eDifferenceColumn_t { eColumnAddress, eColumnProgram, eColumnReference };

const int fileRole = Qt::UserRole;
const int lineRole = Qt::UserRole + 1;
const int gap = 8;
const int iconSize = 16;
const int minListHeight = 90;

QIcon iconOf(ModMsgHookIf::eMsgType_t grade)
{
    switch (grade) {
    case ModMsgHookIf::eMsgError:
        return SchemeIcons::of(QStringLiteral(":/ModMsg/img/msgError.png"));
    case ModMsgHookIf::eMsgWarning:
        return SchemeIcons::of(QStringLiteral(":/ModMsg/img/msgWarning.png"));
    default:
        return SchemeIcons::of(QStringLiteral(":/ModMsg/img/msgOk.png"));
    }
}

QString words(int count)
{
    return count == 1 ? ImportProgramReport::tr("1 word") : ImportProgramReport::tr("%1 words").arg(count);
}

} // namespace

ImportProgramReport::ImportProgramReport(QWidget* parent)
    : QWidget(parent)
    , m_icon(new QLabel(this))
    , m_headline(new QLabel(this))
    , m_details(new QLabel(this))
    , m_lists(new QSplitter(Qt::Vertical, this))
    , m_differences(makeList(QStringLiteral("importDifferences"), {tr("Address"), tr("Program"), tr("Reference")}))
    , m_messages(makeList(QStringLiteral("importMessages"), {tr("Message"), tr("File"), tr("Line")}))
{
    m_icon->setFixedSize(iconSize, iconSize);
    m_headline->setObjectName(QStringLiteral("sectionTitle"));
    m_details->setObjectName(QStringLiteral("pageHint"));
    for (QLabel* label : {m_headline, m_details}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    }
    m_differences->setAccessibleName(tr("Differences between the program and the reference"));
    m_differences->setToolTip(tr("The first differences. A double click shows the line of the source."));
    m_messages->setAccessibleName(tr("Messages of the import"));
    m_messages->setToolTip(tr("A double click shows the line of the source."));
    m_messages->header()->setStretchLastSection(false);
    m_messages->header()->setSectionResizeMode(eColumnMessage, QHeaderView::Stretch);
    m_messages->header()->setSectionResizeMode(eColumnFile, QHeaderView::ResizeToContents);
    m_messages->header()->setSectionResizeMode(eColumnLine, QHeaderView::ResizeToContents);
    m_differences->header()->setSectionResizeMode(QHeaderView::Stretch);
    m_differences->header()->setSectionResizeMode(eColumnAddress, QHeaderView::ResizeToContents);
    QFont mono(QStringLiteral("DejaVu Sans Mono"));
    mono.setStyleHint(QFont::Monospace);
    m_differences->setFont(mono);
    m_lists->setChildrenCollapsible(false);

    auto* head = new QHBoxLayout;
    head->setSpacing(gap);
    head->addWidget(m_icon, 0, Qt::AlignVCenter);
    head->addWidget(m_headline, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(gap / 2);
    layout->addLayout(head);
    layout->addWidget(m_details);
    layout->addWidget(m_lists, 1);
    clear();
}

QTreeWidget* ImportProgramReport::makeList(const QString& name, const QStringList& titles)
{
    auto* list = new QTreeWidget(m_lists);
    list->setObjectName(name);
    list->setHeaderLabels(titles);
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    list->setAlternatingRowColors(true);
    list->setMinimumHeight(minListHeight);
    connect(list, &QTreeWidget::itemActivated, this, &ImportProgramReport::showPlace);
    // Where the desktop activates by a single click or by none, a double click does it as well.
    connect(list, &QTreeWidget::itemDoubleClicked, this, [this, list](QTreeWidgetItem* item) {
        if (list->style()->styleHint(QStyle::SH_ItemView_ActivateItemOnSingleClick) != 0)
            showPlace(item);
    });
    return list;
}

void ImportProgramReport::clear()
{
    m_icon->clear();
    m_headline->clear();
    m_details->clear();
    m_differences->clear();
    m_differences->hide();
    m_messages->clear();
}

void ImportProgramReport::setState(ModMsgHookIf::eMsgType_t grade, const QString& headline, const QString& details)
{
    m_icon->setPixmap(iconOf(grade).pixmap(iconSize));
    m_headline->setText(headline);
    m_details->setText(details);
    m_details->setVisible(!details.isEmpty());
}

QString ImportProgramReport::headline() const
{
    return m_headline->text();
}

QString ImportProgramReport::details() const
{
    return m_details->text();
}

// --- a result ---

void ImportProgramReport::setResult(const ImportJob& job)
{
    clear();
    ModMsgHookIf::eMsgType_t grade = ModMsgHookIf::eMsgInfo;
    const QString headline = headlineOf(job, &grade);
    setState(grade, headline, detailsOf(job));
    addDifferences(job);
    addMessages(job);
}

/// The one sentence that the user waits for.
QString ImportProgramReport::headlineOf(const ImportJob& job, ModMsgHookIf::eMsgType_t* grade)
{
    *grade = ModMsgHookIf::eMsgError;
    if (!job.hasResult())
        return tr("Not imported: nothing was written.");
    if (!job.isWritten())
        return tr("Nothing was written.");
    if (job.leftCount() > 0)
        return job.leftCount() == 1
                   ? tr("1 line left to do: the assembler stops there.")
                   : tr("%1 lines left to do: the assembler stops at each of them.").arg(job.leftCount());
    if (job.isCompared()) {
        const ImageProofResult& proof = job.proof();
        *grade = proof.equal ? ModMsgHookIf::eMsgInfo : ModMsgHookIf::eMsgError;
        return proof.report().constFirst();
    }
    *grade = job.isProved() ? ModMsgHookIf::eMsgInfo : ModMsgHookIf::eMsgWarning;
    return job.isProved() ? tr("%1, which the sources assemble to again").arg(words(job.wordCount()))
                          : tr("%1, not proved: there is no reference image").arg(words(job.wordCount()));
}

QString ImportProgramReport::detailsOf(const ImportJob& job)
{
    QStringList parts;
    if (const auto* program = dynamic_cast<const ProgramJob*>(&job); program != nullptr && job.hasResult()) {
        const int files = program->fileCount();
        parts.append(tr("%1 from %2 (%3).")
                         .arg(words(job.wordCount()), files == 1 ? tr("1 file") : tr("%1 files").arg(files),
                              program->dialectTitle()));
        const int renamed = program->renamedCount();
        if (renamed > 0)
            parts.append(renamed == 1 ? tr("1 name was changed.") : tr("%1 names were changed.").arg(renamed));
    }
    if (job.isWritten())
        parts.append(tr("Project: %1").arg(QDir::toNativeSeparators(job.projectFile())));
    else if (job.isCompared())
        parts.append(job.proof().report().constFirst() + '.');
    return parts.join(' ');
}

void ImportProgramReport::addDifferences(const ImportJob& job)
{
    if (!job.isCompared())
        return;
    for (const ImageDifference& difference : job.proof().first) {
        auto* item = new QTreeWidgetItem(m_differences,
                                         {QString::number(difference.address, 16).toUpper().rightJustified(3, '0'),
                                          difference.oursSide(), difference.referenceSide()});
        item->setToolTip(eColumnReference, difference.referenceSide());
        item->setToolTip(eColumnProgram, difference.oursSide());
        const ImportOrigin origin = job.origin(difference.oursPlace);
        if (!origin.isValid())
            continue;
        item->setToolTip(eColumnProgram, tr("%1\nfrom %2, line %3: %4")
                                             .arg(difference.oursSide(), origin.file, QString::number(origin.line),
                                                  origin.text.trimmed()));
        item->setData(0, fileRole, origin.file);
        item->setData(0, lineRole, origin.line);
    }
    m_differences->setVisible(m_differences->topLevelItemCount() > 0);
}

void ImportProgramReport::addMessages(const ImportJob& job)
{
    // What went wrong comes first.
    for (const auto grade : {ModMsgHookIf::eMsgError, ModMsgHookIf::eMsgWarning, ModMsgHookIf::eMsgInfo}) {
        for (const ImportMessage& message : job.messages()) {
            if (message.grade() == grade)
                addMessage(grade, message.text, message.file, message.line);
        }
    }
    for (const QString& note : job.notes())
        addMessage(ModMsgHookIf::eMsgInfo, note, QString(), 0);
    if (job.unlistedCount() > 0)
        addMessage(
            ModMsgHookIf::eMsgInfo,
            tr("%1 that the program does not have itself are not in the reference.").arg(words(job.unlistedCount())),
            QString(), 0);
    const QStringList report = job.isCompared() ? job.proof().report() : QStringList();
    // Behind the headline; the differences have a list of their own.
    for (int i = 1; i < report.size() && !report.at(i).contains(QStringLiteral(": program ")); ++i)
        addMessage(ModMsgHookIf::eMsgInfo, report.at(i), QString(), 0);
}

void ImportProgramReport::addMessage(ModMsgHookIf::eMsgType_t grade, const QString& text, const QString& file, int line)
{
    auto* item = new QTreeWidgetItem(m_messages,
                                     {text, QFileInfo(file).fileName(), line > 0 ? QString::number(line) : QString()});
    item->setIcon(eColumnMessage, iconOf(grade));
    item->setToolTip(eColumnMessage, text);
    item->setToolTip(eColumnFile, file);
    item->setTextAlignment(eColumnLine, Qt::AlignRight | Qt::AlignVCenter);
    item->setData(0, fileRole, file);
    item->setData(0, lineRole, line);
}

void ImportProgramReport::showPlace(QTreeWidgetItem* item)
{
    const QString file = item->data(0, fileRole).toString();
    if (!file.isEmpty())
        emit placeRequested(file, qMax(1, item->data(0, lineRole).toInt()));
}

} // namespace nsModImport
