#pragma once

#include <QStringList>
#include <QWidget>

class QListWidget;
class QPushButton;

namespace nsModImport {

/// A short list of folders with buttons that add and remove. Takes folders that are dropped on it.
class ImportFolderList : public QWidget
{
    Q_OBJECT

public:
    explicit ImportFolderList(QWidget* parent = nullptr);

    void setFolders(const QStringList& folders);
    QStringList folders() const;
    /// Folder in which the choice of a further one starts.
    void setStartFolder(const QString& folder) { m_startFolder = folder; }

signals:
    void changed();

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private slots:
    void choose();
    void removeSelected();

private:
    void add(const QString& folder);
    void updateButtons();

    QListWidget* m_list;
    QPushButton* m_add;
    QPushButton* m_remove;
    QString m_startFolder;
};

} // namespace nsModImport
