#include "EditorTipManager.h"

#include "Colors.h"

#include <QFile>
#include <QTextBrowser>
#include <QVBoxLayout>

#include <algorithm>

namespace nsModEditor {

namespace {

const char* const templatePath = ":/ModEditor/tipTemplate/tipTemplate.html";

} // namespace

EditorTipManager::EditorTipManager(QWidget* parent)
    : QDialog(parent)
    , m_title("Titel")
    , m_description("A short description.")
{
    setWindowTitle(tr("Description"));
    for (int index = 1; index <= 5; ++index)
        m_argsIn.insert(QString("REG_work%1").arg(index), QString("Eingangsregister %1").arg(index));
    m_argsOut.insert("REG_retVal", "Ausgangsregister");
}

void EditorTipManager::showTip(QWidget* parent, QPoint pos, QString& word)
{
    if (!setTip(word))
        return;
    // Without the flags, setParent() would turn the dialog into a child widget.
    setParent(parent, windowFlags());
    move(pos);
    show();
}

bool EditorTipManager::setTip(QString& word)
{
    Q_UNUSED(word)
    QFile file(templatePath);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return false;
    QString text = Colors::filled(QString::fromUtf8(file.readAll()));
    QString content = QString("<h1>%1</h1>").arg(m_title.toHtmlEscaped());
    content += QString("<p>%1</p>").arg(m_description.toHtmlEscaped());
    content += setTipArgs(tr("Input values"), m_argsIn);
    content += setTipArgs(tr("Output values"), m_argsOut);
    if (m_browser == nullptr) {
        m_browser = new QTextBrowser(this);
        auto* layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(m_browser);
    }
    m_browser->setHtml(text.replace("{content}", content));
    return true;
}

QString EditorTipManager::setTipArgs(QString title, QHash<QString, QString>& args)
{
    if (args.isEmpty())
        return QString();
    QString table = QString("<h2>%1</h2>").arg(title.toHtmlEscaped()) + "<p><table>";
    QStringList names = args.keys();
    std::sort(names.begin(), names.end());
    for (const QString& name : qAsConst(names)) {
        table += "<tr>";
        table += QString("<td class=\"arg\"><li>%1</li></td> ").arg(name.toHtmlEscaped());
        table += QString("<td class=\"argVal\">%1</td>").arg(args.value(name).toHtmlEscaped());
        table += "</tr>";
    }
    return table + "</table></p>";
}

} // namespace nsModEditor
