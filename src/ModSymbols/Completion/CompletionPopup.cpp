#include "CompletionPopup.h"

#include <QAbstractTableModel>
#include <QApplication>
#include <QHeaderView>
#include <QScreen>
#include <QScrollBar>

namespace nsModSymbols {

/// Words and notes, as two columns.
class CompletionModel : public QAbstractTableModel
{
public:
    using QAbstractTableModel::QAbstractTableModel;

    void setWords(const QVector<sCompletion>& words)
    {
        beginResetModel();
        m_words = words;
        endResetModel();
    }
    const QVector<sCompletion>& words() const { return m_words; }
    int rowCount(const QModelIndex& parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : m_words.size();
    }
    int columnCount(const QModelIndex& = QModelIndex()) const override { return 2; }
    QVariant data(const QModelIndex& index, int role) const override
    {
        if (role != Qt::DisplayRole || index.row() >= m_words.size())
            return QVariant();
        const sCompletion& word = m_words.at(index.row());
        return index.column() == 0 ? word.word : word.shownNote();
    }

private:
    QVector<sCompletion> m_words;
};

namespace {

const int widthRows = 50; ///< rows whose words decide about the width
const int maxWordWidth = 40;
const int maxNoteWidth = 60; ///< characters
const int space = 24;        ///< pixels beside a text

} // namespace

CompletionPopup::CompletionPopup(QWidget* document)
    : QTreeView(document)
    , m_model(new CompletionModel(this))
{
    setObjectName(QStringLiteral("completion"));
    setAccessibleName(tr("Words"));
    setWindowFlags(Qt::ToolTip | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocusPolicy(Qt::NoFocus);
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setHeaderHidden(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setModel(m_model);
    header()->setStretchLastSection(true);
    connect(this, &QTreeView::clicked, this, &CompletionPopup::chosen);
}

void CompletionPopup::showWords(const QVector<sCompletion>& words, const QRect& anchor, int rowCount)
{
    m_model->setWords(words);
    setCurrentIndex(m_model->index(0, 0));
    int wordLength = 0;
    int noteLength = 0;
    for (int i = 0; i < qMin(words.size(), widthRows); ++i) {
        wordLength = qMax(wordLength, words.at(i).word.size());
        noteLength = qMax(noteLength, words.at(i).shownNote().size());
    }
    const QFontMetrics metrics = fontMetrics();
    const int character = metrics.averageCharWidth() + 1;
    header()->resizeSection(0, qMin(wordLength, maxWordWidth) * character + space);
    const int width = header()->sectionSize(0) + qMin(noteLength, maxNoteWidth) * character + space +
                      verticalScrollBar()->sizeHint().width();
    const int rowHeight = qMax(sizeHintForRow(0), metrics.height());
    const int height = qMin(words.size(), rowCount) * rowHeight + 2 * frameWidth();
    const QScreen* screen = QApplication::screenAt(anchor.center());
    const QRect room = screen != nullptr ? screen->availableGeometry() : QRect(anchor.topLeft(), QSize(width, height));
    QPoint corner = anchor.bottomLeft();
    if (screen != nullptr && corner.y() + height > room.bottom())
        corner.setY(anchor.top() - height);
    if (screen != nullptr)
        corner.setX(qMax(room.left(), qMin(corner.x(), room.right() - width)));
    setGeometry(QRect(corner, QSize(width, height)));
    show();
}

sCompletion CompletionPopup::current() const
{
    return m_model->words().value(currentIndex().row());
}

int CompletionPopup::count() const
{
    return m_model->words().size();
}

bool CompletionPopup::handleMove(int key)
{
    const int rows = m_model->words().size();
    const int page = qMax(1, viewport()->height() / qMax(1, sizeHintForRow(0)) - 1);
    int row = currentIndex().row();
    switch (key) {
    case Qt::Key_Up:
        row = row > 0 ? row - 1 : rows - 1;
        break;
    case Qt::Key_Down:
        row = row < rows - 1 ? row + 1 : 0;
        break;
    case Qt::Key_PageUp:
        row = qMax(0, row - page);
        break;
    case Qt::Key_PageDown:
        row = qMin(rows - 1, row + page);
        break;
    default:
        return false;
    }
    setCurrentIndex(m_model->index(row, 0));
    return true;
}

} // namespace nsModSymbols
