// The templates that are shipped: each assembles for each processor that it names, without errors and warnings.

#include "TemplateProgram.h"

#include "QtPrinters.h"

#include <gtest/gtest.h>

#include <QFileInfo>
#include <QSet>

namespace {

const QStringList knownProcessors = {"Xilinx PicoBlaze 3", "Xilinx PicoBlaze 6", "Lattice Mico8 v3.x"};

struct Case
{
    QString path;
    QString processor;
};

QList<Case> cases()
{
    QList<Case> list;
    for (const QString& path : TemplateFile::all()) {
        for (const QString& processor : TemplateFile(path).processors)
            list.append({path, processor});
    }
    return list;
}

void PrintTo(const Case& one, std::ostream* out)
{
    *out << one.path.toStdString() << " for " << one.processor.toStdString();
}

std::string caseName(const ::testing::TestParamInfo<Case>& info)
{
    QString name = QFileInfo(info.param.path).completeBaseName() + '_' + info.param.processor;
    return name.replace(QRegExp("[^A-Za-z0-9]"), "_").toStdString();
}

class TemplateAssembles : public ::testing::TestWithParam<Case>
{
};

TEST_P(TemplateAssembles, withoutAComplaint)
{
    const TemplateFile file(GetParam().path);
    const bool needsVector = file.kind == "interrupt" || file.kind == "program" || file.kind == "start";
    TemplateProgram program(file.source(), GetParam().processor, needsVector);
    EXPECT_TRUE(program.isAssembled());
    EXPECT_EQ(program.complaints(), QStringList()) << file.source().toStdString();
    for (const QString& routine : file.routines)
        EXPECT_NE(program.entry(routine), nullptr) << routine.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Shipped, TemplateAssembles, ::testing::ValuesIn(cases().toVector().toStdVector()), caseName);

TEST(TemplateFiles, areThereForEveryProcessor)
{
    QHash<QString, int> count;
    for (const Case& one : cases())
        ++count[one.processor];
    for (const QString& processor : knownProcessors)
        EXPECT_GE(count.value(processor), 13) << processor.toStdString();
    EXPECT_EQ(count.size(), knownProcessors.size());
}

TEST(TemplateFiles, haveTheFormAndAPlaceOfTheirOwnInTheMenu)
{
    QSet<QString> items;
    for (const QString& path : TemplateFile::all()) {
        const TemplateFile file(path);
        EXPECT_FALSE(file.inserted.isEmpty()) << path.toStdString();
        EXPECT_TRUE(QStringList({"program", "routines", "interrupt", "start"}).contains(file.kind))
            << path.toStdString();
        EXPECT_EQ(file.routines.isEmpty(), file.kind != "routines") << path.toStdString();
        EXPECT_EQ(file.menuItems.size(), file.processors.size()) << path.toStdString();
        for (const QString& item : file.menuItems) {
            EXPECT_FALSE(items.contains(item)) << item.toStdString();
            EXPECT_EQ(item.count('/'), 3) << item.toStdString();
            items.insert(item);
        }
        EXPECT_FALSE(file.inserted.contains('\r')) << path.toStdString();
        EXPECT_TRUE(file.inserted.endsWith('\n')) << path.toStdString();
    }
}

TEST(TemplateFiles, twoIntoOneSourceDoNotDisturbEachOther)
{
    for (const QString& processor : knownProcessors) {
        QString calls = "main:\n";
        QString texts;
        for (const QString& path : TemplateFile::all()) {
            const TemplateFile file(path);
            // What sets an address stands at the end, and only one can.
            if (file.kind != "routines" || !file.processors.contains(processor) || file.inserted.contains("#ORG"))
                continue;
            for (const QString& routine : file.routines)
                calls += "        CALL    " + routine + '\n';
            texts += file.inserted;
        }
        TemplateProgram program(calls + "  main_loop:\n        JUMP    main_loop\n" + texts, processor, false);
        EXPECT_TRUE(program.isAssembled());
        EXPECT_EQ(program.complaints(), QStringList()) << processor.toStdString();
    }
}

} // namespace
