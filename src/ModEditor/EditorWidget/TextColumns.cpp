#include "TextColumns.h"

#include <QTextBoundaryFinder>

#include <algorithm>

namespace nsModEditor {

TextColumns::TextColumns(const QString& text, int tabWidth)
{
    tabWidth = qMax(tabWidth, 1);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    int column = 0;
    m_indices.append(0);
    m_columns.append(0);
    int index = 0;
    while (index < text.size()) {
        const int next = finder.toNextBoundary();
        if (next <= index)
            break;
        column += text.at(index) == '\t' ? tabWidth - column % tabWidth : 1;
        index = next;
        m_indices.append(index);
        m_columns.append(column);
    }
}

int TextColumns::columnOf(int index) const
{
    const auto found = std::upper_bound(m_indices.begin(), m_indices.end(), index);
    return m_columns.at(int(found - m_indices.begin()) - 1);
}

int TextColumns::indexAt(int column) const
{
    const auto found = std::upper_bound(m_columns.begin(), m_columns.end(), qMax(column, 0));
    return m_indices.at(int(found - m_columns.begin()) - 1);
}

int TextColumns::indexAfter(int index) const
{
    const auto found = std::upper_bound(m_indices.begin(), m_indices.end(), index);
    return found != m_indices.end() ? *found : m_indices.last();
}

} // namespace nsModEditor
