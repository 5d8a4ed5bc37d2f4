#pragma once

#include "MainWindowFixture.h"

#include "ModAsmFeHookIf.h"
#include "ModConfig.h"
#include "ModPrj.h"
#include "ModSourcesHookIf.h"
#include "MyColorSelector.h"
#include "MyFontTable.h"
#include "QtPrinters.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTabWidget>
#include <QToolBar>

using Snapshot = QMap<QString, QStringList>; ///< values of all fields by the title of their page

/// The real window with its settings dialog: reads and changes every field of every page.
class SettingsFixture : public MainWindowFixture
{
protected:
    /// Makes the window, in a size of its own.
    void start()
    {
        writeSetting("ModGui/width", "1280");
        writeSetting("ModGui/height", "750");
        makeWindow();
    }
    nsModConfig::ModConfig* config() const { return module<nsModConfig::ModConfig>(); }
    nsModPrj::ModPrj* prj() const { return module<nsModPrj::ModPrj>(); }
    QWidget* dialog() const { return window->findChild<QWidget*>("configDialog"); }
    QListWidget* list() const { return dialog()->findChild<QListWidget*>("configList"); }
    QStringList titles() const
    {
        QStringList result;
        for (int row = 0; row < list()->count(); ++row)
            result.append(list()->item(row)->text());
        return result;
    }
    QWidget* page(const QString& title) const
    {
        auto* stack = dialog()->findChild<QStackedWidget*>("configPages");
        return static_cast<QScrollArea*>(stack->widget(titles().indexOf(title)))->widget();
    }
    template <class Widget>
    Widget* field(const QString& title, const QString& name) const
    {
        return page(title)->findChild<Widget*>(name);
    }
    void press(const QString& text) const
    {
        for (QPushButton* button : dialog()->findChildren<QPushButton*>()) {
            if (button->text() == text && button->isVisible()) {
                QTest::mouseClick(button, Qt::LeftButton);
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
                return;
            }
        }
        ADD_FAILURE() << "no button " << qPrintable(text);
    }
    void type(QWidget* field, const QString& text) const
    {
        field->setFocus();
        QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(field, text);
    }

    /// Presses a button of the tool bars.
    void trigger(const QString& text) const
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        for (QToolBar* bar : window->findChildren<QToolBar*>()) {
            for (QAction* action : bar->actions()) {
                if (action->text() == text && action->isEnabled()) {
                    action->trigger();
                    QCoreApplication::processEvents();
                    return;
                }
            }
        }
        ADD_FAILURE() << "no action " << qPrintable(text);
    }

    QString makePrj(const QString& name, const QByteArray& processor = "Xilinx PicoBlaze 6",
                    const QByteArray& rest = QByteArray())
    {
        const QString path = projectDir() + '/' + name;
        QDir().mkpath(QFileInfo(path).path());
        for (const char* source : {"/a.psm", "/b.psm"})
            writeFile(QFileInfo(name).path() + source, "; nothing\n");
        return writeFile(name,
                         "<project version=\"3\"><PrjInfo><title>T</title><version>1</version><comment>C</comment>"
                         "</PrjInfo><sources><srcFiles>a.psm:b.psm</srcFiles></sources><ModProcessor><processor>" +
                             processor + "</processor></ModProcessor>" + rest + "</project>");
    }
    static QByteArray content(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
    }

    static QString valueOf(QWidget* widget)
    {
        // A search field is no setting.
        if (widget->property("isSetting").isValid())
            return QString();
        if (auto* box = qobject_cast<QSpinBox*>(widget))
            return QString::number(box->value());
        if (auto* box = qobject_cast<QDoubleSpinBox*>(widget))
            return QString::number(box->value(), 'f', 6);
        if (auto* box = qobject_cast<QComboBox*>(widget))
            return box->currentText();
        if (auto* box = qobject_cast<QCheckBox*>(widget))
            return QString::number(box->isChecked());
        if (auto* edit = qobject_cast<QPlainTextEdit*>(widget))
            return edit->toPlainText();
        if (auto* selector = qobject_cast<MyColorSelector*>(widget))
            return selector->color().name();
        if (auto* table = qobject_cast<MyFontTable*>(widget))
            return formatsOf(table);
        if (auto* files = qobject_cast<QListWidget*>(widget))
            return rowsOf(files);
        auto* edit = qobject_cast<QLineEdit*>(widget);
        return edit != nullptr && !edit->isReadOnly() && !isPartOfBox(widget) ? edit->text() : QString();
    }
    static bool isPartOfBox(QWidget* widget)
    {
        return qobject_cast<QAbstractSpinBox*>(widget->parentWidget()) != nullptr ||
               qobject_cast<QComboBox*>(widget->parentWidget()) != nullptr;
    }
    static QString formatsOf(MyFontTable* table)
    {
        QStringList result;
        for (int row = 0; row < table->model()->rowCount(); ++row) {
            const QTextCharFormat format = table->format(row);
            result.append(QString("%1/%2/%3")
                              .arg(format.fontWeight() >= QFont::Bold)
                              .arg(format.fontItalic())
                              .arg(format.foreground().color().name()));
        }
        return result.join(' ');
    }
    static QString rowsOf(QListWidget* files)
    {
        QStringList result;
        for (int row = 0; row < files->count(); ++row)
            result.append(files->item(row)->text());
        return result.join(' ');
    }
    static QByteArray rubbishSections(const QByteArray& processor, const QByteArray& value)
    {
        const auto element = [](const QByteArray& name, const QByteArray& text) {
            return '<' + name + '>' + text + "</" + name + '>';
        };
        QByteArray own = element("memMap", element("pageSize", value));
        for (const char* key : {"clkFreq", "scrpdSize", "intVectorAddr", "instrClkCnt", "regCount"})
            own += element(key, value);
        QByteArray behavior;
        for (const char* key : {"charset", "equ", "set"})
            behavior += element(key, value);
        const QByteArray target = element("target", element("hex", element("en", value)));
        return element(processor, own) + element("ModEditor", element("tabIndent", value)) +
               element("AsmFe", element("behavior", behavior) + target);
    }
    /// The settings of the processors have the same names: they go by that of their processor.
    QString nameOf(QWidget* widget) const
    {
        auto* stack = field<QStackedWidget>("Processor", "processorConfig");
        const int index = stack->indexOf(widget);
        return index < 0 ? widget->objectName() : field<QComboBox>("Processor", "processor")->itemText(index);
    }
    /// Leaves out the settings of all processors but the one that the page shows.
    void keepShownProcessor(Snapshot* values) const
    {
        const QString shown = field<QComboBox>("Processor", "processor")->currentText();
        QStringList kept;
        for (const QString& value : (*values)["Processor"]) {
            if (!value.contains("procConfigTabs") || value.contains("." + shown + "."))
                kept.append(value);
        }
        (*values)["Processor"] = kept;
    }
    Snapshot snapshot() const
    {
        Snapshot result;
        for (const QString& title : titles()) {
            for (QWidget* widget : page(title)->findChildren<QWidget*>()) {
                const QString value = valueOf(widget);
                QString name = widget->objectName() + widget->property("setting").toString();
                for (QWidget* parent = widget->parentWidget(); parent != page(title); parent = parent->parentWidget())
                    name.prepend(nameOf(parent) + '.');
                if (!value.isNull())
                    result[title].append(name + '=' + value);
            }
            // A widget that comes to the front changes its place among the others.
            result[title].sort();
        }
        return result;
    }

    static void change(QWidget* widget)
    {
        if (auto* box = qobject_cast<QSpinBox*>(widget))
            QTest::keyClick(box, box->value() < box->maximum() ? Qt::Key_Up : Qt::Key_Down);
        else if (auto* number = qobject_cast<QDoubleSpinBox*>(widget))
            QTest::keyClick(number, number->value() < number->maximum() ? Qt::Key_Up : Qt::Key_Down);
        else if (auto* choice = qobject_cast<QComboBox*>(widget))
            QTest::keyClick(choice, choice->currentIndex() < choice->count() - 1 ? Qt::Key_Down : Qt::Key_Up);
        else if (auto* check = qobject_cast<QCheckBox*>(widget))
            QTest::keyClick(check, Qt::Key_Space);
        else if (auto* text = qobject_cast<QPlainTextEdit*>(widget))
            QTest::keyClicks(text, "changed ");
        else if (auto* selector = qobject_cast<MyColorSelector*>(widget))
            selector->setColor(QColor(selector->color().rgb() ^ 0x123456));
        else if (auto* table = qobject_cast<MyFontTable*>(widget))
            changeFormats(table);
        else if (auto* files = qobject_cast<QListWidget*>(widget))
            removeFirst(files);
        else if (auto* edit = qobject_cast<QLineEdit*>(widget))
            QTest::keyClicks(edit, "x");
    }
    static void changeFormats(MyFontTable* table)
    {
        for (int row = 0; row < table->model()->rowCount(); ++row) {
            for (int column = 1; column <= 2; ++column) {
                table->setCurrentIndex(table->model()->index(row, column));
                QTest::keyClick(table, Qt::Key_Space);
            }
        }
    }
    static void removeFirst(QListWidget* files)
    {
        files->setCurrentRow(0);
        QTest::keyClick(files, Qt::Key_Delete);
    }
    static bool enablesOthers(QWidget* widget)
    {
        const QString name = widget->objectName();
        return name == "targetEnable" || name == "proxyType" || name.startsWith("syscallEn") ||
               name.startsWith("syscallBlocking");
    }
    /// What another field disables once it is changed.
    static bool isDisabledByOthers(QWidget* widget) { return widget->objectName() == "coreWarnings"; }
    void changeEverything() const
    {
        for (const QString& title : titles()) {
            ASSERT_TRUE(config()->selectDialogPageByTitle(title));
            // What is enabled here enables the rest, and what is switched off disables it.
            QList<QCheckBox*> last;
            for (QCheckBox* box : page(title)->findChildren<QCheckBox*>()) {
                if (enablesOthers(box) && box->isChecked())
                    last.append(box);
                else if (enablesOthers(box) || isDisabledByOthers(box))
                    change(box);
            }
            if (auto* proxy = page(title)->findChild<QComboBox*>("proxyType"))
                proxy->setCurrentIndex(proxy->findText("HTTP Proxy", Qt::MatchStartsWith));
            for (QWidget* widget : page(title)->findChildren<QWidget*>()) {
                if (!enablesOthers(widget) && !isDisabledByOthers(widget) && !valueOf(widget).isNull())
                    change(widget);
            }
            // The last ones first: they depend on those before them.
            std::reverse(last.begin(), last.end());
            for (QCheckBox* box : last)
                change(box);
        }
    }
    static void expectEachDiffers(const QStringList& a, const QStringList& b)
    {
        ASSERT_EQ(a.size(), b.size());
        for (int i = 0; i < a.size(); ++i)
            EXPECT_NE(a[i], b[i]) << qPrintable(a[i]);
    }
    static void expectSame(const QStringList& a, const QStringList& b, const QString& where)
    {
        ASSERT_EQ(a.size(), b.size()) << qPrintable(where);
        for (int i = 0; i < a.size(); ++i)
            EXPECT_EQ(a[i], b[i]) << qPrintable(where) << ": " << qPrintable(a[i]) << " is not " << qPrintable(b[i]);
    }
    static void expectSame(const Snapshot& a, const Snapshot& b)
    {
        ASSERT_EQ(a.keys(), b.keys());
        for (const QString& title : a.keys())
            expectSame(a[title], b[title], title);
    }
};
