#include "QuickOpen.h"

#include "FuzzyMatch.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace nsModSrcNavi {

namespace {

const QSize startSize(520, 380);
const int gap = 6;

} // namespace

QuickOpen::QuickOpen(QVector<sTarget_t> targets, QWidget* parent)
    : QDialog(parent)
    , m_targets(std::move(targets))
    , m_edit(new QLineEdit(this))
    , m_list(new QListWidget(this))
{
    setObjectName(QStringLiteral("quickOpen"));
    setWindowTitle(tr("Quick open"));
    m_edit->setObjectName(QStringLiteral("quickOpenEdit"));
    m_edit->setPlaceholderText(tr("Letters of a file, label or constant; @ for names alone"));
    m_edit->setAccessibleName(tr("Name of a file or symbol"));
    m_edit->setClearButtonEnabled(true);
    m_list->setObjectName(QStringLiteral("quickOpenList"));
    m_list->setAccessibleName(tr("What fits"));
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->setUniformItemSizes(true);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setTextElideMode(Qt::ElideMiddle);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(gap, gap, gap, gap);
    layout->setSpacing(gap);
    layout->addWidget(m_edit);
    layout->addWidget(m_list, 1);
    resize(startSize);
    if (parent != nullptr)
        move(parent->mapToGlobal(QPoint((parent->width() - width()) / 2, parent->height() / 8)));
    m_edit->installEventFilter(this);
    connect(m_edit, &QLineEdit::textChanged, this, &QuickOpen::fill);
    connect(m_list, &QListWidget::itemClicked, this, &QuickOpen::accept);
    fill();
    m_edit->setFocus();
}

void QuickOpen::fill()
{
    struct sHit_t
    {
        int target;
        int score;
    };
    QVector<sHit_t> hits;
    QString pattern = m_edit->text().trimmed();
    const bool symbolsOnly = pattern.startsWith(QLatin1Char('@'));
    if (symbolsOnly)
        pattern.remove(0, 1);
    for (int i = 0; i < m_targets.size(); ++i) {
        if (symbolsOnly && !m_targets.at(i).isSymbol)
            continue;
        const int score = fuzzyMatch(pattern, m_targets.at(i).name);
        if (score >= 0)
            hits.append({i, score});
    }
    std::stable_sort(hits.begin(), hits.end(), [](const sHit_t& a, const sHit_t& b) { return a.score > b.score; });
    m_list->clear();
    m_rows.clear();
    for (const sHit_t& hit : qAsConst(hits)) {
        if (m_rows.size() == maxRows)
            break;
        const sTarget_t& target = m_targets.at(hit.target);
        m_rows.append(hit.target);
        auto* item = new QListWidgetItem(target.detail.isEmpty() ? target.name
                                                                 : target.name + QLatin1String("    ") + target.detail);
        item->setData(Qt::UserRole, target.name);
        m_list->addItem(item);
    }
    m_list->setCurrentRow(m_rows.isEmpty() ? -1 : 0);
}

void QuickOpen::leaveOut(const std::function<bool(const QString&)>& isMissing)
{
    const auto keyOf = [](const sTarget_t& target) {
        return QStringLiteral("%1\n%2\n%3").arg(target.file, target.name).arg(target.line);
    };
    const int before = m_list->currentRow();
    const QString current = before >= 0 && before < m_rows.size() ? keyOf(m_targets.at(m_rows.at(before))) : QString();
    m_targets.erase(
        std::remove_if(m_targets.begin(), m_targets.end(),
                       [&isMissing](const sTarget_t& target) { return !target.isSymbol && isMissing(target.file); }),
        m_targets.end());
    fill();
    for (int row = 0; row < m_rows.size(); ++row) {
        if (keyOf(m_targets.at(m_rows.at(row))) == current)
            m_list->setCurrentRow(row);
    }
}

bool QuickOpen::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            QCoreApplication::sendEvent(m_list, event);
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            accept();
            return true;
        default:
            break;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void QuickOpen::accept()
{
    const int row = m_list->currentRow();
    if (row < 0 || row >= m_rows.size())
        return;
    m_chosen = m_targets.at(m_rows.at(row));
    QDialog::accept();
}

} // namespace nsModSrcNavi
