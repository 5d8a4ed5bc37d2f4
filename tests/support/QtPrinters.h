#pragma once

#include <QString>
#include <QStringList>

#include <ostream>

// How GoogleTest shows Qt's texts in its messages.

inline void PrintTo(const QString& text, std::ostream* stream)
{
    *stream << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QStringList& texts, std::ostream* stream)
{
    *stream << '[' << texts.join(" | ").toStdString() << ']';
}
