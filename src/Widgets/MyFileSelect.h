#pragma once

#include <QStringList>
#include <QWidget>

class MyButtonOpenFile;
class MyPathEdit;
class QFileDialog;

/// What the two file selectors share: a path, and a button that opens a file dialog.
///
/// With a base folder the field shows the path relative to it. A scheme in front of the path, as in a pasted link, is
/// removed. The field takes dropped files.
class MyFileSelect : public QWidget
{
    Q_OBJECT

public:
    /// For the file dialog: the suffix of a file without one, without a dot.
    void setDefaultSuffix(QString suffix);
    /// For the file dialog: its title.
    void setWindowTitle(QString title);
    /// For the file dialog: filters such as "Hex files(*.hex)".
    void setNameFilters(QStringList filters);
    /// Shows a path.
    /// @param file absolute, or relative to the folder; may be empty
    /// @param relDir folder that the path is shown relative to; empty: the path is shown as it is
    void setFile(QString file, QString relDir);
    /// The path: absolute if there is a base folder, else as it stands in the field; empty if the field is.
    QString file() const;

    /// Folder that the file dialog starts in while the field is empty; empty: as without one.
    void setStartFolder(const QString& folder) { m_startFolder = folder; }

    /// What the tool tip of the field says, above the path.
    void setDescription(const QString& description);
    /// The field itself; owned by the selector.
    MyPathEdit* pathEdit() const { return m_edit; }

signals:
    /// The text has changed, and holds a usable path or not.
    void fileValid(bool valid);

protected:
    explicit MyFileSelect(QWidget* parent);

    QString toRelPath(QString path) const;
    QString toAbsPath(QString path) const;
    QString text() const;

    /// Is the path usable? @param problem where not: why, for the user; empty for an empty path
    virtual bool isUsable(const QString& path, QString* problem) const = 0;
    /// Makes the file dialog one for opening or saving.
    virtual void setupDialog(QFileDialog* dialog) const = 0;
    /// Called for each new text, after fileValid().
    virtual void fileChecked() {}

protected slots:
    void selectFile();
    void checkFile(QString text);

private:
    void takeSelection(const QString& path);
    void setupPlace(QFileDialog* dialog) const;

    MyPathEdit* m_edit = nullptr;
    MyButtonOpenFile* m_button = nullptr;
    QString m_base; ///< folder that the field's path is relative to
    QString m_startFolder;
    QString m_suffix;
    QString m_title;
    QStringList m_filters;
};
