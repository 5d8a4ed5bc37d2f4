#include "Grammar.h"
#include "Painted.h"
#include "QtPrinters.h"
#include "Tool.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <cstring>

namespace {

/// Each kind of text has a colour of its own, which tells it in the output.
QString colorOf(int style)
{
    return QString("#0000%1").arg(style + 1, 2, 16, QChar('0'));
}

QByteArray theme()
{
    QJsonObject kinds;
    for (int i = 0; i < nsSyntax::styles().size(); ++i)
        kinds.insert(nsSyntax::styles().at(i).title, QJsonObject{{"text-color", colorOf(i)}});
    const QJsonObject root{{"metadata", QJsonObject{{"name", "Kinds"}, {"revision", 1}}},
                           {"text-styles", QJsonObject{{"Normal", QJsonObject{{"text-color", "#ffffff"}}}}},
                           {"editor-colors", QJsonObject{{"BackgroundColor", "#ffffff"}}},
                           {"custom-styles", QJsonObject{{nsSyntax::languageTitle, kinds}}}};
    return QJsonDocument(root).toJson();
}

/// KDE's library, with the definition in a folder of its own.
class SyntaxKate : public ::testing::Test
{
protected:
    SyntaxKate()
    {
        writeText(m_dir.filePath("org.kde.syntax-highlighting/syntax/nalvo.xml"), definition("kate/nalvo.xml"));
        writeText(m_dir.filePath("org.kde.syntax-highlighting/themes/kinds.theme"), theme());
        m_env.insert("XDG_DATA_HOME", m_dir.path());
        m_env.insert("LC_ALL", "C.UTF-8");
    }

    QByteArray highlighted(const QStringList& arguments) const
    {
        return outputOf("kate-syntax-highlighter", arguments, m_env);
    }
    QStringList painted(const QStringList& lines) const
    {
        // The definition is found by the suffix.
        const QString file = m_dir.filePath("all.psm");
        writeText(file, lines.join('\n').toUtf8() + '\n');
        const QString html = QString::fromUtf8(highlighted({"-t", "Kinds", file}));
        EXPECT_TRUE(html.contains("Definition (Nalvo Assembler) - Theme (Kinds)")) << html.left(500).toStdString();
        const int start = html.indexOf("<pre>\n") + int(strlen("<pre>\n"));
        QStringList result = html.mid(start, html.indexOf("</pre>") - start).split('\n');
        result.removeLast();
        for (QString& line : result)
            line = paintedLine(line);
        return result;
    }

private:
    static QString paintedLine(const QString& html)
    {
        QXmlStreamReader xml("<line>" + html + "</line>");
        QString painted;
        QChar letter = '.';
        while (!xml.atEnd()) {
            xml.readNext();
            if (xml.isStartElement() && xml.name() == QLatin1String("span"))
                letter = letterOfCss(xml.attributes().value("style").toString());
            if (xml.isEndElement())
                letter = '.';
            if (xml.isCharacters())
                painted += QString(xml.text().size(), letter);
        }
        EXPECT_FALSE(xml.hasError()) << html.toStdString();
        return painted;
    }
    static QChar letterOfCss(const QString& css)
    {
        for (int i = 0; i < nsSyntax::styles().size(); ++i) {
            if (css.contains("color:" + colorOf(i)))
                return letterOf(nsSyntax::styles().at(i).id);
        }
        ADD_FAILURE() << "unknown style " << css.toStdString();
        return '?';
    }

    QTemporaryDir m_dir;
    QProcessEnvironment m_env = QProcessEnvironment::systemEnvironment();
};

} // namespace

TEST_F(SyntaxKate, knowsTheDefinition)
{
    EXPECT_TRUE(highlighted({"--list"}).contains("\nNalvo Assembler\n"));
}

TEST_F(SyntaxKate, paintsTheSamples)
{
    expectSamples(painted(sampleLines()), "Kate");
}

TEST_F(SyntaxKate, paintsTheSourcesAsTheWindow)
{
    expectAsWindow(painted(sourceLines()), "Kate");
}
