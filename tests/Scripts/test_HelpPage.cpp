// The page of the help about scripts says what scripts can really call, and its examples run.

#include "ScriptWindow.h"

#include "ModMsgHookIf.h"

#include <QMetaMethod>
#include <QRegularExpression>
#include <QSet>

namespace {

class ScriptsInHelp : public ScriptWindow
{
protected:
    ScriptsInHelp()
    {
        QFile file(NALVO_SOURCE_DIR "/help/pages/batch/scripts.md");
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        page = QString::fromUtf8(file.readAll());
    }

    /// The operations that the page names in the section of an object.
    QStringList onPage(const QString& object) const
    {
        const QString section = page.section("\n## `" + object + "`\n", 1).section("\n## ", 0, 0);
        QStringList names;
        QRegularExpressionMatchIterator it =
            QRegularExpression("^\\| `(\\w+)\\(", QRegularExpression::MultilineOption).globalMatch(section);
        while (it.hasNext())
            names.append(it.next().captured(1));
        names.removeDuplicates();
        names.sort();
        return names;
    }
    /// The objects that have a section.
    QStringList objectsOnPage() const
    {
        QStringList names;
        QRegularExpressionMatchIterator it =
            QRegularExpression("^## `(\\w+)`$", QRegularExpression::MultilineOption).globalMatch(page);
        while (it.hasNext())
            names.append(it.next().captured(1));
        return names;
    }
    /// The objects of the program that a script sees.
    QStringList registered()
    {
        QStringList names =
            notes("for (var name in this) {\n"
                  "    var value = this[name];\n"
                  "    if (value !== null && typeof value === 'object' && value.objectName !== undefined)\n"
                  "        test.note(name);\n"
                  "}");
        names.removeAll("test");
        names.sort();
        return names;
    }
    /// Operations of an object's own class that a script can call, as the engine offers them: with arguments that a
    /// script can give.
    QStringList offered(const QString& object)
    {
        target.objects.clear();
        EXPECT_TRUE(run("test.take(" + object + ");"));
        if (target.objects.isEmpty() || target.objects.first() == nullptr)
            return {};
        static const QSet<int> plain{QMetaType::Bool,    QMetaType::Int,         QMetaType::Double,
                                     QMetaType::QString, QMetaType::QStringList, QMetaType::QUrl};
        const QMetaObject* meta = target.objects.first()->metaObject();
        QStringList names;
        for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
            const QMetaMethod method = meta->method(i);
            bool isPlain = method.access() == QMetaMethod::Public && method.methodType() != QMetaMethod::Signal;
            for (int parameter = 0; parameter < method.parameterCount(); ++parameter)
                isPlain = isPlain && plain.contains(method.parameterType(parameter));
            // What the buttons of the project manager are connected to is not meant for others.
            if (isPlain && !method.name().startsWith("prjMngr"))
                names.append(method.name());
        }
        names.removeDuplicates();
        names.sort();
        return names;
    }

    QString page;
};

} // namespace

TEST_F(ScriptsInHelp, everyObjectHasItsSection)
{
    // A window without the import lacks its object.
    QStringList sections = objectsOnPage();
    if (!registered().contains("importFiles"))
        sections.removeAll("importFiles");
    sections.sort();
    EXPECT_EQ(sections, registered());
}

TEST_F(ScriptsInHelp, everyOperationStandsThereAndNoOther)
{
    for (const QString& object : registered()) {
        SCOPED_TRACE(qPrintable(object));
        QStringList operations = offered(object);
        // It belongs to every window.
        if (object == "app")
            operations.prepend("close");
        EXPECT_EQ(onPage(object), operations);
        for (const QString& operation : onPage(object))
            EXPECT_EQ(notes("test.note(typeof " + object + '.' + operation + ");"), QStringList("function"));
    }
}

TEST_F(ScriptsInHelp, theExamplesRun)
{
    copyFolder(NALVO_SOURCE_DIR "/examples/scripts/multiply", projectDir() + "/multiply");
    QRegularExpressionMatchIterator it =
        QRegularExpression("^```js\\n(.*?)^```$",
                           QRegularExpression::MultilineOption | QRegularExpression::DotMatchesEverythingOption)
            .globalMatch(page);
    int count = 0;
    while (it.hasNext()) {
        const QString example = it.next().captured(1);
        SCOPED_TRACE(qPrintable(example));
        ++count;
        module<ModMsgHookIf>()->clearMessages();
        script()->executeScriptFile(writeFile("example.js", example.toUtf8()));
        EXPECT_EQ(messageTexts().last(), "Done") << qPrintable(messageTexts().join('\n'));
    }
    EXPECT_GE(count, 3);
}
