#pragma once

#include <QString>
#include <QWidget>

namespace nsModGui {

/// What the centre shows while no page is open: the name of the program and what to do next. Takes no input.
class EmptyPage : public QWidget
{
    Q_OBJECT

public:
    explicit EmptyPage(QWidget* parent = nullptr);

    /// @param text what is open, such as the project; empty if nothing is
    void setOpenText(const QString& text);
    /// The text under the name, in lines.
    QString hint() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_openText;
};

} // namespace nsModGui
