#pragma once

#include <QFrame>

/// A horizontal line.
class MyHLine : public QFrame
{
    Q_OBJECT

public:
    explicit MyHLine(QWidget* parent = nullptr);
};
