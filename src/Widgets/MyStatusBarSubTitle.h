#pragma once

#include <QLabel>

/// A label of the status bar of second rank.
class MyStatusBarSubTitle : public QLabel
{
    Q_OBJECT

public:
    explicit MyStatusBarSubTitle(QWidget* parent = nullptr);
    explicit MyStatusBarSubTitle(const QString& text, QWidget* parent = nullptr);
};
