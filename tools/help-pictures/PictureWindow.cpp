#include "PictureWindow.h"

#include "EditorWidget.h"
#include "ModEditor.h"
#include "ModMsgHookIf.h"
#include "ModPrj.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDirIterator>
#include <QDockWidget>
#include <QEventLoop>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPixmap>
#include <QPointer>
#include <QSettings>
#include <QTimer>
#include <QTreeWidget>
#include <QVariantAnimation>

namespace {

const int layoutRounds = 8;
const int dialogInterval = 10; ///< milliseconds between two looks
const int restTime = 300;      ///< milliseconds, more than any animation of the window takes

void copyFolder(const QString& from, const QString& to)
{
    QDirIterator it(from, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        // What somebody has written there by a run of the example is no part of it.
        if (it.fileInfo().dir().dirName() == QLatin1String("output"))
            continue;
        const QString target = to + '/' + QDir(from).relativeFilePath(path);
        QDir().mkpath(QFileInfo(target).path());
        QFile::copy(path, target);
        QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner);
    }
    for (const QFileInfo& folder : QDir(from).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot))
        QDir().mkpath(to + '/' + folder.fileName() + QStringLiteral("/output"));
}

} // namespace

const QSize PictureWindow::fullSize(1120, 700);

PictureWindow::PictureWindow(const QString& examples, const QString& output)
    : m_projects(m_home.path() + QStringLiteral("/home/me/projects"))
    , m_output(output)
{
    QDir().mkpath(m_output);
    copyFolder(examples, m_projects);
    for (const char* variable : {"XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_CONFIG_HOME"})
        qputenv(variable, m_home.filePath(QLatin1String(variable)).toLocal8Bit());
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_home.filePath(QStringLiteral("settings")));
    QSettings settings(m_home.filePath(QStringLiteral("settings/Brelmont/Nalvo.ini")), QSettings::IniFormat);
    settings.setValue(QStringLiteral("ModGui/width"), QString::number(fullSize.width()));
    settings.setValue(QStringLiteral("ModGui/height"), QString::number(fullSize.height()));
    // Nothing is asked of the network, and there is no help yet.
    for (const char* key : {"ModSwUpdate/updateCheckInterval", "ModHlp/showGettingStarted", "ModHlp/hlpIndexSideRight"})
        settings.setValue(QLatin1String(key), QStringLiteral("0"));
}

PictureWindow::~PictureWindow()
{
    if (m_window == nullptr)
        return;
    for (nsModEditor::EditorWidget* document : module<nsModEditor::ModEditor>()->editorWidgets())
        document->clearModified();
    m_window->close();
}

void PictureWindow::start()
{
    static char name[] = "nalvo";
    char* arguments[] = {name, nullptr};
    m_window = std::make_unique<Nalvo>(1, arguments);
    m_window->activateWindow();
    module<ModMsgHookIf>()->clearMessages();
    settle();
}

QWidget* PictureWindow::widget(const QString& name) const
{
    for (QWidget* candidate : m_window->findChildren<QWidget*>(name)) {
        if (candidate->isVisible())
            return candidate;
    }
    return nullptr;
}

void PictureWindow::open(const QString& name)
{
    if (!module<nsModPrj::ModPrj>()->openPrj(QStringLiteral("%1/%2.nalvo").arg(example(name), name)))
        fail(name + QStringLiteral(": the example can not be opened"));
    settle();
}

void PictureWindow::trigger(const QString& text)
{
    for (const QAction* menu : m_window->menuBar()->actions()) {
        for (QAction* action : menu->menu() != nullptr ? menu->menu()->actions() : QList<QAction*>()) {
            if (action->text() == text && action->isEnabled()) {
                action->trigger();
                return;
            }
        }
    }
    fail(text + QStringLiteral(": there is no such action that can be used"));
}

void PictureWindow::resize(const QSize& size)
{
    m_window->resize(size);
    settle();
}

void PictureWindow::setBottomHeight(int height)
{
    m_window->resizeDocks({m_window->findChild<QDockWidget*>(QStringLiteral("dockBottom"))}, {height}, Qt::Vertical);
    settle();
}

void PictureWindow::setRightWidth(int width)
{
    m_window->resizeDocks({m_window->findChild<QDockWidget*>(QStringLiteral("dockRight"))}, {width}, Qt::Horizontal);
    settle();
}

void PictureWindow::settle()
{
    // A layout that changes a size posts the events of the next one.
    for (int round = 0; round < layoutRounds; ++round) {
        QApplication::sendPostedEvents();
        QApplication::processEvents();
    }
}

void PictureWindow::rest()
{
    // All animations share one clock: the one that starts last and takes longest ends last.
    QVariantAnimation last;
    last.setStartValue(0);
    last.setEndValue(1);
    last.setDuration(restTime);
    QEventLoop loop;
    QObject::connect(&last, &QVariantAnimation::finished, &loop, &QEventLoop::quit);
    last.start();
    loop.exec();
    settle();
}

void PictureWindow::onDialog(const QString& name, std::function<void(QDialog*)> function)
{
    m_dialogs.emplace_back(name, std::move(function));
    watchDialogs();
}

void PictureWindow::watchDialogs()
{
    // A timer for each look: one that repeats itself would be silent while a dialog that it has found opens another
    // one.
    QTimer::singleShot(dialogInterval, m_window.get(), [this] {
        answerDialog();
        if (!m_dialogs.empty())
            watchDialogs();
    });
}

void PictureWindow::answerDialog()
{
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr || !dialog->isVisible() || m_dialogs.empty() ||
        dialog->objectName() != m_dialogs.front().first)
        return;
    const std::function<void(QDialog*)> function = m_dialogs.front().second;
    m_dialogs.erase(m_dialogs.begin());
    if (!m_dialogs.empty())
        watchDialogs();
    const QPointer<QDialog> guard(dialog);
    function(dialog);
    if (!guard.isNull() && guard->isVisible())
        guard->reject();
}

QImage PictureWindow::pictureOf(QWidget* widget, const QRect& part) const
{
    const auto shown = [this](QString text) { return text.remove(m_home.path()); };
    for (QLineEdit* line : widget->findChildren<QLineEdit*>()) {
        if (line->text().contains(m_home.path())) {
            const QSignalBlocker blocker(line);
            line->setText(shown(line->text()));
            line->setCursorPosition(0);
        }
    }
    for (QLabel* label : widget->findChildren<QLabel*>()) {
        if (label->text().contains(m_home.path()))
            label->setText(shown(label->text()));
    }
    QList<QTreeWidget*> trees = widget->findChildren<QTreeWidget*>();
    if (auto* tree = qobject_cast<QTreeWidget*>(widget))
        trees.append(tree);
    for (QTreeWidget* tree : qAsConst(trees)) {
        for (QTreeWidgetItemIterator it(tree); *it != nullptr; ++it) {
            for (int column = 0; column < tree->columnCount(); ++column)
                (*it)->setText(column, shown((*it)->text(column)));
        }
    }
    return widget->grab(part.isNull() ? widget->rect() : part).toImage().convertToFormat(QImage::Format_RGB888);
}

void PictureWindow::take(const QString& name, QWidget* widget, const QRect& part)
{
    if (widget == nullptr || !widget->isVisible()) {
        fail(name + QStringLiteral(": there is nothing to take a picture of"));
        return;
    }
    // Whether a path that is too long shows its begin or its end depends on the order of layout and painting.
    for (QLineEdit* edit : widget->findChildren<QLineEdit*>()) {
        if (edit->isReadOnly())
            edit->home(false);
    }
    settle();
    save(name, pictureOf(widget, part));
}

void PictureWindow::save(const QString& name, const QImage& picture)
{
    bool isPlain = true;
    for (int x = 0; x < picture.width() && isPlain; ++x) {
        for (int y = 0; y < picture.height() && isPlain; ++y)
            isPlain = picture.pixel(x, y) == picture.pixel(0, 0);
    }
    if (isPlain)
        fail(name + QStringLiteral(": the picture is empty"));
    else if (!picture.save(m_output + '/' + name + QStringLiteral(".png")))
        fail(name + QStringLiteral(": the picture can not be written"));
    else
        m_taken.append(name);
}
