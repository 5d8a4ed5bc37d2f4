#pragma once

#include <QLabel>

/// The heading of a section of a page.
class MySectionTitle : public QLabel
{
    Q_OBJECT

public:
    explicit MySectionTitle(QWidget* parent = nullptr);
    explicit MySectionTitle(const QString& text, QWidget* parent = nullptr);
};
