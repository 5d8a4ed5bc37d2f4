#pragma once

#include "ImportFilter.h"
#include "ModMsgPluginIf.h"

#include <QWidget>

class QBoxLayout;
class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QSpinBox;

namespace nsModImport {

class ImportEditorWidget;
class ImportFilterIf;

/// The import page: converts a foreign source line by line or in one go, and shows the result beside it.
///
/// A conversion of all lines handles the user's events meanwhile, so anything may happen to the page, its end included.
class ImportWidget : public QWidget, public ModMsgPluginIf
{
    Q_OBJECT

public:
    static constexpr int maxLineLength = 10000; ///< characters of a source's line
    static constexpr int minTabIndent = 1;      ///< characters
    static constexpr int maxTabIndent = 16;

    explicit ImportWidget(QWidget* parent = nullptr);

    /// @param path folder where the choice of a file starts, and that a relative path means
    void setPrjPath(const QString& path);
    /// Selects the filter of this name. @return false if there is none, which changes nothing
    bool setImportFilter(const QString& name);
    /// Shows the source, to be converted from its first line on. A file that can not be opened changes the shown path
    /// alone.
    /// @return whether the file is shown
    bool openFile(const QString& path);
    /// Time of a conversion between two looks at the user's events, in milliseconds; with 0 one after each line.
    void setSliceTime(int time) { m_sliceTime = time; }

signals:
    /// The user wants the result. @param srcCode converted source
    void useFile(QString srcCode);
    /// The user wants to import more than one file.
    void importProgramRequested();

public slots:
    void setSrcTabIndent(int indent);
    void setDstTabIndent(int indent);
    /// Takes the filter of this name, or none; the conversion so far is dropped.
    void applyImportFilter(QString name);
    /// Drops the conversion so far.
    void restart();
    /// Converts the next line.
    void convertLine();
    /// Converts up to the end, to the first line that can not be converted, or until the user stops it.
    void convertAll();
    /// Ends a conversion of all lines after the present one.
    void stop();
    void useFile();
    void selectFile();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    /// What came of the next line.
    enum eStep_t { stepConverted = 0, stepFailed = 1, stepEnd = 2 };

    void initFilter();
    void layoutSource(QGridLayout* grid);
    void layoutDestination(QGridLayout* grid);
    void layoutButtons(QGridLayout* grid);
    void connectControls();
    void addTitled(QGridLayout* grid, int row, int column, const QString& title, QWidget* field);
    QSpinBox* tabSpinBox(const QString& name, const QString& toolTip);
    QPushButton* button(const QString& name, const QString& text, const QString& toolTip);
    static int longLine(const QString& text);
    void updateButtons();
    eStep_t convertNext(QStringList* result);
    void showProgress(const QStringList& lines, eStep_t last);
    void endOfRun(bool hadFocus);
    void showError(const QString& text);

    ImportFilter* filterList;
    ImportFilterIf* filter = nullptr; ///< owned by the list; null for none
    int lineNo = 0;                   ///< of the next line
    QString prjPath;
    int m_sliceTime = 40;
    bool m_hasSource = false;
    bool m_isConverting = false; ///< all lines
    int m_run = 0;               ///< number of the conversion; whatever begins anew makes it another one

    QLineEdit* m_path = nullptr;
    QPushButton* m_select = nullptr;
    QSpinBox* m_srcTabIndent = nullptr;
    QSpinBox* m_dstTabIndent = nullptr;
    QComboBox* m_filters = nullptr;
    QLabel* m_description = nullptr;
    ImportEditorWidget* m_source = nullptr;
    ImportEditorWidget* m_destination = nullptr;
    QPushButton* m_restart = nullptr;
    QPushButton* m_convertLine = nullptr;
    QPushButton* m_convertAll = nullptr;
    QPushButton* m_useFile = nullptr;
    QPushButton* m_program = nullptr;
    QBoxLayout* m_buttons = nullptr;
    QPushButton* m_stop = nullptr;
    QProgressBar* m_progress = nullptr;
};

} // namespace nsModImport
