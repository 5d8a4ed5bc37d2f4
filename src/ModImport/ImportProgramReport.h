#pragma once

#include "ImportMsg.h"

#include <QWidget>

class QLabel;
class QSplitter;
class QTreeWidget;
class QTreeWidgetItem;

namespace nsImport {
class ImportJob;
} // namespace nsImport

namespace nsModImport {

/// What has come of the import of a program: the result, its differences from the reference side by side, and all
/// messages with their lines.
class ImportProgramReport : public QWidget
{
    Q_OBJECT

public:
    explicit ImportProgramReport(QWidget* parent = nullptr);

    /// Nothing was imported yet.
    void clear();
    /// A sentence in place of a result.
    void setState(ModMsgHookIf::eMsgType_t grade, const QString& headline, const QString& details);
    /// Shows what the job has come to.
    void setResult(const nsImport::ImportJob& job);

    QString headline() const;
    QString details() const;

signals:
    /// The user wants to see a line of a source. @param line counted from 1
    void placeRequested(QString file, int line);

private:
    static QString headlineOf(const nsImport::ImportJob& job, ModMsgHookIf::eMsgType_t* grade);
    static QString detailsOf(const nsImport::ImportJob& job);
    QTreeWidget* makeList(const QString& name, const QStringList& titles);
    void addDifferences(const nsImport::ImportJob& job);
    void addMessages(const nsImport::ImportJob& job);
    void addMessage(ModMsgHookIf::eMsgType_t grade, const QString& text, const QString& file, int line);
    void showPlace(QTreeWidgetItem* item);

    QLabel* m_icon;
    QLabel* m_headline;
    QLabel* m_details;
    QSplitter* m_lists;
    QTreeWidget* m_differences;
    QTreeWidget* m_messages;
};

} // namespace nsModImport
