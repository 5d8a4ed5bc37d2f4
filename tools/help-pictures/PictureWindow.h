#pragma once

#include "ModPluginIf.h"
#include "Nalvo.h"

#include <QSize>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>
#include <memory>
#include <vector>

class QDialog;

/// The main window on a copy of the examples, in a home folder of its own, and the pictures that are taken of it.
///
/// The pictures depend on the program and the examples alone: no time, user or path of this computer is in them.
class PictureWindow
{
public:
    /// @param examples folder of the example projects
    /// @param output folder of the pictures
    PictureWindow(const QString& examples, const QString& output);
    ~PictureWindow();

    /// Makes the window, without a project.
    void start();
    Nalvo* window() const { return m_window.get(); }
    /// The module of the class, or the one that serves the hook; never null in a window that works.
    template <class Type>
    Type* module() const
    {
        for (ModPluginIf* candidate : m_window->modules()) {
            if (Type* found = dynamic_cast<Type*>(candidate))
                return found;
        }
        return nullptr;
    }
    /// The visible widget with this object name; null if there is none.
    QWidget* widget(const QString& name) const;

    /// Folder of an example's copy.
    QString example(const QString& name) const { return m_projects + '/' + name; }
    /// Opens an example; the messages and documents of the one before are gone.
    void open(const QString& name);
    /// Triggers the entry of a menu with this text. One that can not be used is a failure.
    void trigger(const QString& text);
    /// Of the whole window.
    static const QSize fullSize;
    void resize(const QSize& size);
    /// Gives the dock at the bottom this height, the one at the right this width.
    void setBottomHeight(int height);
    void setRightWidth(int width);
    /// Lets layouts come to rest.
    static void settle();
    /// Lets animations end, too: branches of a tree that unfold, buttons that fade in.
    static void rest();
    /// What to do with the next modal dialog, which must be the one with this object name. If it is left open, it is
    /// rejected.
    void onDialog(const QString& name, std::function<void(QDialog*)> function);

    /// Takes a picture of the widget, or of a part of it, as it is.
    void take(const QString& name, QWidget* widget, const QRect& part = QRect());
    void save(const QString& name, const QImage& picture);
    void fail(const QString& text) { m_errors.append(text); }
    /// Names of the pictures so far, and what went wrong.
    const QStringList& taken() const { return m_taken; }
    const QStringList& errors() const { return m_errors; }
    /// A picture of the widget, without what is a matter of this computer.
    QImage pictureOf(QWidget* widget, const QRect& part = QRect()) const;

private:
    void watchDialogs();
    void answerDialog();

    QTemporaryDir m_home;
    QString m_projects;
    QString m_output;
    std::unique_ptr<Nalvo> m_window;
    std::vector<std::pair<QString, std::function<void(QDialog*)>>> m_dialogs;
    QStringList m_taken;
    QStringList m_errors;
};
