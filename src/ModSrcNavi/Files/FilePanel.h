#pragma once

#include "ProjectFiles.h"
#include "QuickOpen.h"

#include "FilePresence.h"

#include <QMenu>
#include <QObject>
#include <QPointer>
#include <QStringList>

#include <functional>

class ModEditorHookIf;
class ModGuiHookIf;
class ModMsgHookIf;
class ModPrjHookIf;
class ModSourcesHookIf;
class ModSrcNaviPluginIfSymbols;

namespace nsModSrcNavi {

class FileListWidget;
class NaviTagList;

/// What leads to the files of the project: the panel that lists them, quick open, and the files that were shown last.
class FilePanel : public QObject
{
    Q_OBJECT

public:
    /// The services; each may be null.
    struct sServices_t
    {
        ModPrjHookIf* prj = nullptr;
        ModSourcesHookIf* sources = nullptr;
        ModEditorHookIf* editor = nullptr;
        ModGuiHookIf* gui = nullptr;
        ModSrcNaviPluginIfSymbols* symbols = nullptr;
    };

    static constexpr int maxRecent = 20;

    /// @param services asked at each use, as they can go
    FilePanel(std::function<sServices_t()> services, QObject* parent = nullptr);
    ~FilePanel() override;

    /// Stays here; null when the window has taken it along.
    FileListWidget* widget() const;
    QMenu* recentMenu() const { return m_menu; }

    /// A project is open, or not any more.
    void setProjectOpen(bool isOpen);
    /// What the assembler knows of the project. Absolute paths.
    void setTargets(const QStringList& templates, const QStringList& outputs, const QMap<QString, int>& errors);
    /// A page is in front now. @param page may be null
    void pageShown(QWidget* page);
    QStringList recent() const { return m_recent; }
    void setRecent(const QStringList& files);
    /// Shows all anew when control returns to the event loop.
    void refreshSoon();
    bool select(const QString& file);
    /// Asks for a file or symbol and goes there.
    void quickOpen(const NaviTagList& tags);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void refresh(int currentSource = -1);
    void changeSources(const ProjectFiles::sSource_t& source, const std::function<int(QStringList*, int row)>& change);
    void open(const QString& file);
    void fillMenu();
    void markMissing();
    void updateMenu();
    QVector<QuickOpen::sTarget_t> targets(const NaviTagList& tags) const;

    std::function<sServices_t()> m_services;
    QPointer<FileListWidget> m_widget;
    QPointer<QMenu> m_menu;
    ProjectFiles m_files;
    QStringList m_recent;    ///< the file shown last first
    FilePresence m_presence; ///< of the recent files
    bool m_isOpen = false;
    bool m_refreshes = false;
};

} // namespace nsModSrcNavi
