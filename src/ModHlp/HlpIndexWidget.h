#pragma once

#include <QMap>
#include <QUrl>
#include <QWidget>

#include <functional>

class QHelpEngine;
class QHelpIndexWidget;
class QHelpSearchEngine;
class QLineEdit;
class QTabWidget;

namespace nsModHlp {

/// Contents, index and full-text search of the collection as three tabs.
///
/// The tabs are made when the widget is shown for the first time, as the lists cost time.
class HlpIndexWidget : public QWidget
{
    Q_OBJECT

public:
    /// @param engine with an opened collection, asked for at the first show; not owned, must outlive the widget
    explicit HlpIndexWidget(std::function<QHelpEngine*()> engine, QWidget* parent = nullptr);

signals:
    void linkActivated(QUrl url);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void makeTabs();
    QWidget* makeIndexTab(QHelpIndexWidget* index);
    QWidget* makeSearchTab(QHelpSearchEngine* search);
    void choose(const QMap<QString, QUrl>& links, const QString& keyword);

    std::function<QHelpEngine*()> m_openEngine;
    QTabWidget* m_tabs = nullptr;
    QLineEdit* m_filter = nullptr;
};

} // namespace nsModHlp
