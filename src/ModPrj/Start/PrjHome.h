#pragma once

#include "PrjStep.h"
#include "RecentProjects.h"

#include "FilePresence.h"
#include "MyLinkList.h"

#include <QList>
#include <QMenu>
#include <QObject>
#include <QPointer>

#include <functional>

class MyLinkButton;

namespace nsModPrj {

/// What leads on: the links of the start page, of the empty centre and of the status bar, and the recent projects.
class PrjHome : public QObject
{
    Q_OBJECT

public:
    /// What the links do, and what they are made of.
    struct sAccess_t
    {
        std::function<bool()> isOpen; ///< a project is open
        std::function<QString()> title;
        std::function<QList<PrjStep>()> steps; ///< of all clients
        std::function<void()> newProject;
        std::function<void()> openProject;               ///< asks for the file
        std::function<void(const QString& file)> open;   ///< opens a project
        std::function<void(const QString& text)> report; ///< an error, for the message view
        std::function<void()> recentsChanged;            ///< the list is to be kept
        std::function<void(bool shown)> showStatus;      ///< puts statusLink() into the window, or takes it out
    };

    explicit PrjHome(sAccess_t access, QObject* parent = nullptr);
    ~PrjHome() override;

    RecentProjects& recents() { return m_recents; }
    /// The page for the empty centre. Stays here.
    MyLinkList* page() const { return m_page; }
    /// Links for a page of the start. Owned by the parent.
    MyLinkList* newStartLinks(QWidget* parent);
    /// The next missing step as a link, for the status bar. Stays here.
    QWidget* statusLink() const { return m_status; }
    /// A menu of the recent projects. Stays here.
    QMenu* recentMenu() const { return m_menu; }

    /// The project has been opened.
    void addRecent(const QString& file);
    /// While the settings dialog is open the project stays as it is.
    void setLocked(bool locked);
    /// Shows all anew when control returns to the event loop.
    void refreshSoon();
    /// Asks for an example and opens its copy.
    void openExample();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void refresh();
    QVector<MyLinkList::sSection_t> startSections() const;
    QVector<MyLinkList::sSection_t> projectSections(const QList<PrjStep>& steps) const;
    void showStatus(const QList<PrjStep>& steps);
    void fitStatus();
    void fillMenu();
    void openRecent(const QString& file);
    void removeRecent(const QString& file);

    sAccess_t m_access;
    RecentProjects m_recents;
    FilePresence m_presence; ///< of the recent projects
    QPointer<MyLinkList> m_page;
    QList<QPointer<MyLinkList>> m_startLinks;
    QPointer<QWidget> m_status;
    MyLinkButton* m_statusButton; ///< in m_status
    QPointer<QMenu> m_menu;
    std::function<void()> m_statusAct; ///< null: nothing is missing
    QPointer<QWidget> m_window;        ///< whose width is followed
    QString m_exampleFolder;           ///< that the user has chosen last
    bool m_refreshes = false;
    bool m_locked = false;
};

} // namespace nsModPrj
