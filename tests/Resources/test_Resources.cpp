// Every picture that the sources or the style sheet name is there, in both sizes.

#include "QtPrinters.h"

#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>

static void initResources()
{
    Q_INIT_RESOURCE(nalvo);
}

namespace {

QString content(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// Paths below ":/" that a text names.
QSet<QString> namedPaths(const QString& text)
{
    QSet<QString> paths;
    QRegularExpressionMatchIterator it =
        QRegularExpression(R"re(:(/[A-Za-z0-9_/.-]+\.(?:png|css)))re").globalMatch(text);
    while (it.hasNext())
        paths.insert(':' + it.next().captured(1));
    return paths;
}

const QStringList simulatorActions{"simEn",   "simRestart", "simSetPc",    "simInt",         "simRun",
                                   "simStop", "simNext",    "simNextLine", "simToEndOfCall", "simToCursor",
                                   "baseDec", "baseHex",    "baseOct"};
const QStringList deviceButtons{"devClose", "fifoExpand", "fifoCollapse"};
const QStringList waveButtons{"waveAdd", "waveZoomIn", "waveZoomOut", "waveZoomFit", "waveSave"};

/// Pixels that are dark on white paper in one of two pictures of one size and light in the other.
int shapeDifference(const QImage& one, const QImage& other)
{
    const auto isLight = [](QRgb pixel) {
        return (qGray(pixel) * qAlpha(pixel) + 255 * (255 - qAlpha(pixel))) / 255 > 160;
    };
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x)
            count += isLight(one.pixel(x, y)) != isLight(other.pixel(x, y));
    }
    return count;
}

class Resources : public ::testing::Test
{
protected:
    Resources() { initResources(); }
};

TEST_F(Resources, picturesNamedBySourcesExistInBothSizes)
{
    QSet<QString> paths;
    QDirIterator it(NALVO_SOURCE_DIR "/src", {"*.cpp"}, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext())
        paths.unite(namedPaths(content(it.next())));
    ASSERT_GE(paths.size(), 5);
    for (const QString& path : qAsConst(paths)) {
        ASSERT_TRUE(QFile::exists(path)) << path.toStdString();
        if (!path.endsWith(".png"))
            continue;
        const QImage once(path);
        const QImage twice(QString(path).replace(".png", "@2x.png"));
        ASSERT_FALSE(once.isNull()) << path.toStdString();
        EXPECT_EQ(twice.size(), once.size() * 2) << path.toStdString();
    }
}

TEST_F(Resources, actionIconsThatSourcesComposeExist)
{
    for (const char* path :
         {"ModAsmFe/img/actions/assemble", "ModAsmFe/img/actions/assemble1", "ModAsmFe/img/actions/assemble2",
          "ModPrj/img/actions/project-new", "ModPrj/img/actions/project-open", "ModPrj/img/actions/project-close"})
        EXPECT_FALSE(QImage(QString(":/%1.png").arg(path)).isNull()) << path;
}

TEST_F(Resources, picturesOfTheSimulatorExistInTheirSizes)
{
    const auto check = [](const QString& folder, const QStringList& names, int size) {
        for (const QString& name : names) {
            const QString path = QString(":/%1/%2").arg(folder, name);
            EXPECT_EQ(QImage(path + ".png").size(), QSize(size, size)) << path.toStdString();
            EXPECT_EQ(QImage(path + "@2x.png").size(), QSize(2 * size, 2 * size)) << path.toStdString();
        }
    };
    check("ProcCommon/img/simulator", simulatorActions, 24);
    check("ProcSim/img", deviceButtons + waveButtons, 16);
}

/// Disabled actions are grey, so what tells the neighbours of a bar apart must be their shape.
TEST_F(Resources, picturesOfTheSimulatorDifferInShape)
{
    const auto check = [](const QString& folder, const QStringList& names) {
        for (int i = 0; i < names.size(); ++i) {
            const QImage one(QString(":/%1/%2@2x.png").arg(folder, names.at(i)));
            ASSERT_FALSE(one.isNull()) << names.at(i).toStdString();
            for (int k = i + 1; k < names.size(); ++k) {
                const QImage other(QString(":/%1/%2@2x.png").arg(folder, names.at(k)));
                ASSERT_EQ(other.size(), one.size()) << names.at(k).toStdString();
                // The least that counts as visible: one part in a hundred of the area.
                EXPECT_GE(shapeDifference(one, other) * 100, one.width() * one.height())
                    << names.at(i).toStdString() << " and " << names.at(k).toStdString();
            }
        }
    };
    check("ProcCommon/img/simulator", simulatorActions);
    check("ProcSim/img", deviceButtons);
    check("ProcSim/img", waveButtons);
}

TEST_F(Resources, picturesNamedByTheStyleSheetExist)
{
    const QString sheet = content(":/styles/styles/stylesheet.css");
    ASSERT_FALSE(sheet.isEmpty());
    const QSet<QString> paths = namedPaths(sheet);
    ASSERT_FALSE(paths.isEmpty());
    for (const QString& path : paths)
        EXPECT_FALSE(QImage(path).isNull()) << path.toStdString();
}

TEST_F(Resources, gradesDifferInShapeAndNotOnlyInColour)
{
    const auto outline = [](const char* name) {
        const QImage image(QString(":/ModMsg/img/%1.png").arg(name));
        QString rows;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                rows += qAlpha(image.pixel(x, y)) > 127 ? '#' : '.';
        }
        return rows;
    };
    EXPECT_NE(outline("msgOk"), outline("msgWarning"));
    EXPECT_NE(outline("msgOk"), outline("msgError"));
    EXPECT_NE(outline("msgWarning"), outline("msgError"));
}

} // namespace
