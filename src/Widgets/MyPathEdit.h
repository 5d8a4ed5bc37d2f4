#pragma once

#include <QLineEdit>

/// A line edit for one path.
///
/// The end of a path matters most, so a field without the focus shows the end; the tool tip has the whole path. A file
/// that is dropped takes the place of the text.
class MyPathEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit MyPathEdit(QWidget* parent = nullptr);

    /// What the tool tip says of the field, above the path.
    void setDescription(const QString& description);
    /// The path as a whole, for the tool tip.
    void setFullPath(const QString& path);
    /// Marks the field when something else has the focus.
    /// @param problem what is wrong with the path, for the tool tip; empty: nothing
    void setProblem(const QString& problem);
    QString problem() const { return m_problem; }

signals:
    /// A local file was dropped on the field.
    /// @param path its absolute path; the text has not changed yet
    void fileDropped(QString path);

protected:
    void focusOutEvent(QFocusEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void showEnd();
    void updateToolTip();

    QString m_description;
    QString m_fullPath;
    QString m_problem;
};
