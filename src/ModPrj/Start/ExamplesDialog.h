#pragma once

#include "ExampleProjects.h"

#include <QDialog>

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace nsModPrj {

/// Lists the examples and copies one into a folder of the user's.
class ExamplesDialog : public QDialog
{
    Q_OBJECT

public:
    /// @param folder where copies go at first; empty: the user has to choose
    ExamplesDialog(const ExampleProjects& examples, const QString& folder, QWidget* parent);

    /// The project file of the copy; empty until accept() has succeeded.
    QString projectFile() const { return m_projectFile; }
    /// The folder that was chosen.
    QString folder() const;
    /// A folder of the user's that can be written: for documents, or else the home; empty if there is none.
    static QString usersFolder();

public slots:
    /// Copies the example; if that fails the dialog stays open and says why.
    void accept() override;

private slots:
    void chooseFolder();
    void updateState();

private:
    ExampleProjects m_examples;
    QVector<ExampleProject> m_list;
    QListWidget* m_view;
    QLineEdit* m_folder;
    QLabel* m_note;
    QPushButton* m_open = nullptr;
    QString m_projectFile;
};

} // namespace nsModPrj
