#pragma once

#include <QFrame>

class MyButton;
class MyElidedLabel;
class QLabel;

namespace nsModPrj {

/// One project of the collection: title, version, comment, file, and buttons for what can be done with it.
class PrjMngrListElementWidget : public QFrame
{
    Q_OBJECT

public:
    explicit PrjMngrListElementWidget(QWidget* parent = nullptr);

    /// Shows a project.
    /// @param file absolute path; a long one is shown shortened, and stays whole in prjFile()
    void setPrjInfo(const QString& file, const QString& title, const QString& version, const QString& comment);
    QString prjFile() const { return m_prjFile; }
    /// The first and the last field that the tab key reaches.
    QWidget* firstField() const;
    QWidget* lastField() const;

signals:
    /// @param element this one
    void open(QWidget* element);
    void remove(QWidget* element);

protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    QString m_prjFile;
    MyElidedLabel* m_title;
    MyElidedLabel* m_version;
    MyElidedLabel* m_comment;
    MyElidedLabel* m_path;
    MyButton* m_remove;
    MyButton* m_open;
};

} // namespace nsModPrj
