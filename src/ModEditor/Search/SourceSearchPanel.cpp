#include "SourceSearchPanel.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHash>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

namespace nsModEditor {

namespace {

const int gap = 8;
const int maxShown = 400; ///< characters of a line that are shown
const int hitRole = Qt::UserRole;

enum eColumn_t { columnHit, columnAfter, columnCount };

QString shown(const QString& line)
{
    QString text = line.left(maxShown).trimmed();
    return text.replace('\t', ' ');
}

/// The part of the line that is shown, after the replacement of a hit.
QString shownAfter(const QString& line, const sHit_t& hit)
{
    if (hit.start >= maxShown)
        return shown(line);
    return shown(line.left(hit.start) + hit.replacement + line.mid(hit.start + hit.length, maxShown));
}

} // namespace

SourceSearchPanel::SourceSearchPanel(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("sourceSearchPanel"));
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(gap, gap / 2, gap, gap / 2);
    layout->setHorizontalSpacing(gap);
    layout->setVerticalSpacing(gap / 2);
    addFields(layout);
    addList(layout);
    setFocusProxy(m_find);
    updateButtons();
}

void SourceSearchPanel::addFields(QGridLayout* layout)
{
    m_find = new QLineEdit(this);
    m_find->setObjectName(QStringLiteral("editSourceFind"));
    m_find->setClearButtonEnabled(true);
    m_find->setToolTip(tr("Text to find in all sources of the project. Enter begins the search."));
    auto* findLabel = new QLabel(tr("Find:"), this);
    findLabel->setBuddy(m_find);
    m_replace = new QLineEdit(this);
    m_replace->setObjectName(QStringLiteral("editSourceReplace"));
    m_replace->setClearButtonEnabled(true);
    m_replace->setToolTip(tr("What takes the place of the ticked hits; of an expression \\1 is what its first group "
                             "has found. The list shows what each line becomes."));
    auto* replaceLabel = new QLabel(tr("Replace:"), this);
    replaceLabel->setBuddy(m_replace);
    m_findButton = new QPushButton(tr("Find"), this);
    m_findButton->setObjectName(QStringLiteral("buttonSourceFind"));
    m_replaceButton = new QPushButton(tr("Replace ticked"), this);
    m_replaceButton->setObjectName(QStringLiteral("buttonSourceReplace"));
    m_replaceButton->setToolTip(tr("Replace the ticked hits, as one step to undo in each document"));
    auto* options = new QHBoxLayout;
    options->setSpacing(gap);
    m_caseSensitive = addCheckBox("checkSourceCase", tr("Case sensitive"), tr("Tell upper from lower case"));
    m_wholeWords =
        addCheckBox("checkSourceWords", tr("Whole words only"), tr("Leave out hits inside of a longer word"));
    m_regExp = addCheckBox("checkSourceRegExp", tr("Expression"), tr("The text is a regular expression"));
    for (QCheckBox* box : {m_caseSensitive, m_wholeWords, m_regExp})
        options->addWidget(box);
    m_status = new QLabel(this);
    m_status->setObjectName(QStringLiteral("labelSourceStatus"));
    m_status->setTextFormat(Qt::PlainText);
    options->addWidget(m_status, 1);

    layout->addWidget(findLabel, 0, 0);
    layout->addWidget(m_find, 0, 1);
    layout->addWidget(m_findButton, 0, 2);
    layout->addWidget(replaceLabel, 1, 0);
    layout->addWidget(m_replace, 1, 1);
    layout->addWidget(m_replaceButton, 1, 2);
    layout->addLayout(options, 2, 0, 1, 3);
    layout->setColumnStretch(1, 1);

    connect(m_find, &QLineEdit::textChanged, this, &SourceSearchPanel::updateButtons);
    connect(m_replace, &QLineEdit::textChanged, this, &SourceSearchPanel::showAllPreviews);
    for (QCheckBox* box : {m_caseSensitive, m_wholeWords, m_regExp})
        connect(box, &QCheckBox::toggled, this, &SourceSearchPanel::updateButtons);
    connect(m_findButton, &QPushButton::clicked, this, [this] {
        if (m_running)
            emit stopRequest();
        else
            emit findRequest();
    });
    connect(m_replaceButton, &QPushButton::clicked, this, &SourceSearchPanel::replaceRequest);
}

void SourceSearchPanel::addList(QGridLayout* layout)
{
    m_list = new QTreeWidget(this);
    m_list->setObjectName(QStringLiteral("listSourceHits"));
    m_list->setAccessibleName(tr("Hits"));
    m_list->setColumnCount(columnCount);
    m_list->setHeaderLabels({tr("Hit"), tr("Line after replacement")});
    m_list->setUniformRowHeights(true);
    m_list->header()->setSectionResizeMode(QHeaderView::Stretch);
    layout->addWidget(m_list, 3, 0, 1, 3);
    layout->setRowStretch(3, 1);
    connect(m_list, &QTreeWidget::itemActivated, this, &SourceSearchPanel::activate);
    connect(m_list, &QTreeWidget::itemChanged, this, &SourceSearchPanel::noteTick);
}

QCheckBox* SourceSearchPanel::addCheckBox(const char* name, const QString& text, const QString& toolTip)
{
    auto* box = new QCheckBox(text, this);
    box->setObjectName(QLatin1String(name));
    box->setToolTip(toolTip);
    return box;
}

sSearch_t SourceSearchPanel::search() const
{
    return {m_find->text(), m_caseSensitive->isChecked(), m_wholeWords->isChecked(), m_regExp->isChecked()};
}

QString SourceSearchPanel::replacement() const
{
    return m_replace->text();
}

void SourceSearchPanel::begin(const QString& text)
{
    if (!text.isEmpty() && !text.contains(QChar::ParagraphSeparator))
        m_find->setText(text);
    m_find->setFocus();
    m_find->selectAll();
}

void SourceSearchPanel::clear()
{
    m_list->clear();
    m_hits.clear();
    m_unticked.clear();
    updateButtons();
}

void SourceSearchPanel::addSource(const QString& path, const QString& name, const QVector<sFoundLine_t>& lines)
{
    const QSignalBlocker blocker(m_list);
    auto* source = new QTreeWidgetItem({name});
    source->setToolTip(columnHit, path);
    source->setFlags(source->flags() | Qt::ItemIsUserCheckable | Qt::ItemIsAutoTristate);
    QList<QTreeWidgetItem*> items;
    for (const sFoundLine_t& line : lines) {
        for (const sHit_t& hit : line.hits) {
            auto* item = new QTreeWidgetItem({QStringLiteral("%1: %2").arg(line.line + 1).arg(shown(line.text))});
            item->setData(columnHit, hitRole, m_hits.size());
            item->setFlags((item->flags() | Qt::ItemIsUserCheckable) & ~Qt::ItemIsAutoTristate);
            item->setCheckState(columnHit, Qt::Checked);
            m_hits.append({path, line.line, line.text, hit});
            items.append(item);
        }
    }
    source->setText(columnHit, tr("%1 (%2)").arg(name).arg(items.size()));
    source->addChildren(items);
    showPreviews(source);
    m_list->addTopLevelItem(source);
    source->setFirstColumnSpanned(true);
    source->setExpanded(true);
    updateButtons();
}

void SourceSearchPanel::setListed(const sSearch_t& search)
{
    m_listed = search;
    updateButtons();
}

void SourceSearchPanel::setRunning(bool running)
{
    m_running = running;
    m_findButton->setText(running ? tr("Stop") : tr("Find"));
    m_findButton->setToolTip(running ? tr("Stop the search; what was found stays")
                                     : tr("Search all sources of the project"));
    updateButtons();
}

void SourceSearchPanel::setStatus(const QString& text)
{
    m_status->setText(text);
    m_status->setToolTip(text);
}

QVector<sListedHit_t> SourceSearchPanel::tickedHits() const
{
    QVector<sListedHit_t> ticked;
    for (QTreeWidgetItemIterator it(m_list, QTreeWidgetItemIterator::Checked); *it != nullptr; ++it) {
        const QVariant number = (*it)->data(columnHit, hitRole);
        if (number.isValid())
            ticked.append(m_hits.at(number.toInt()));
    }
    return ticked;
}

/// What the lines of a source become. The hits of a line stand below one another; a long line can have thousands.
void SourceSearchPanel::showPreviews(QTreeWidgetItem* source)
{
    const TextSearch search(m_listed);
    int line = -1;
    QHash<int, sHit_t> replacements; ///< of the line, by their start
    for (int row = 0; row < source->childCount(); ++row) {
        QTreeWidgetItem* item = source->child(row);
        sListedHit_t& listed = m_hits[item->data(columnHit, hitRole).toInt()];
        if (listed.line != line) {
            line = listed.line;
            replacements.clear();
            for (const sHit_t& hit : search.hitsIn(listed.text, m_replace->text()))
                replacements.insert(hit.start, hit);
        }
        listed.hit = replacements.value(listed.hit.start, listed.hit);
        item->setText(columnAfter, shownAfter(listed.text, listed.hit));
    }
}

void SourceSearchPanel::showAllPreviews()
{
    const QSignalBlocker blocker(m_list);
    for (int i = 0; i < m_list->topLevelItemCount(); ++i)
        showPreviews(m_list->topLevelItem(i));
    m_list->viewport()->update();
}

/// A box was ticked, or the tick was taken away.
void SourceSearchPanel::noteTick(QTreeWidgetItem* item)
{
    const QVariant number = item->data(columnHit, hitRole);
    if (!number.isValid())
        return;
    if (item->checkState(columnHit) == Qt::Checked)
        m_unticked.remove(number.toInt());
    else
        m_unticked.insert(number.toInt());
    updateButtons();
}

void SourceSearchPanel::updateButtons()
{
    m_findButton->setEnabled(m_running || !m_find->text().isEmpty());
    // What is in the list is that of the fields, or it is not to be replaced.
    m_replaceButton->setEnabled(!m_running && m_listed == search() && m_unticked.size() < m_hits.size());
}

void SourceSearchPanel::activate(QTreeWidgetItem* item)
{
    const QVariant number = item->data(columnHit, hitRole);
    if (!number.isValid())
        return;
    // A copy: the list can be gone when the document is open.
    const sListedHit_t hit = m_hits.at(number.toInt());
    emit activated(hit);
}

void SourceSearchPanel::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape && m_running)
        emit stopRequest();
    else if (isEnter && m_find->hasFocus() && !m_find->text().isEmpty() && !m_running)
        emit findRequest();
    else
        QWidget::keyPressEvent(event);
}

} // namespace nsModEditor
