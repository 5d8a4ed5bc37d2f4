#pragma once

#include "ImportProgramConfig.h"
#include "ImportWorker.h"

#include <QDialog>

class QLabel;
class QProgressBar;
class QPushButton;
class QThreadPool;

namespace nsModImport {

class ImportProgramForm;
class ImportProgramReport;

/// Makes a project of a whole program for another assembler, or of an image, and shows what has come of it.
///
/// The dialog is not modal, and the work is done beside the event loop. Nothing is written before the conversion has
/// ended, and into a folder with files only after the user has said yes to it.
class ImportProgramDialog : public QDialog
{
    Q_OBJECT

public:
    /// @param pool not owned; must live longer
    explicit ImportProgramDialog(QThreadPool* pool, QWidget* parent = nullptr);

    void setConfig(const ImportProgramConfig& config);
    ImportProgramConfig config() const;
    /// Whether the result can be opened here.
    void setCanOpenProject(bool can);
    bool isBusy() const { return m_state != stateIdle; }

signals:
    /// @param line counted from 1
    void placeRequested(QString file, int line);
    void openProjectRequested(QString file);

public slots:
    void convert();
    /// Ends a conversion; nothing is written.
    void stop();
    /// Esc: ends a conversion, or closes the dialog.
    void reject() override;

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private slots:
    void showStep(int step);
    void handleConverted();
    void handleWritten();

private:
    enum eState_t { stateIdle, stateConverting, stateAsking, stateWriting };

    QWidget* makeButtons();
    QPushButton* addButton(const QString& name, const QString& text, const QString& toolTip);
    void askToOverwrite();
    void write(bool force);
    void setState(eState_t state);
    void updateState();
    void showHint(const QString& text);

    ImportProgramForm* m_form;
    ImportProgramReport* m_report;
    ImportWorker* m_worker;
    QLabel* m_step;
    QProgressBar* m_progress;
    QPushButton* m_convert = nullptr;
    QPushButton* m_stop = nullptr;
    QPushButton* m_open = nullptr;
    QPushButton* m_close = nullptr;
    ImportWorker::Job m_job; ///< the one that is shown, or is being done
    eState_t m_state = stateIdle;
    bool m_canOpen = true;
    bool m_hadFocus = false; ///< a button of the work had the focus when it began
};

} // namespace nsModImport
