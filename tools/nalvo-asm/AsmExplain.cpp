#include "AsmExplain.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <algorithm>
#include <map>

namespace nsNalvoAsm {

namespace {

const char* const fileName = "messages.txt";
// The window looks for the collection in the same places.
const char* const places[] = {"../hlp", "../../hlp", "../../Common/hlp"};

const int maxSimilar = 5;
const int maxNameLength = 100; ///< of a name that is compared with the keys
const int minPartLength = 3;   ///< of a name that may be a part of a key

QString tr(const char* text)
{
    return QCoreApplication::translate("nalvo-asm", text);
}

/// How many characters must be added, removed or replaced to make one word of the other.
int distance(const QString& a, const QString& b)
{
    QVector<int> row(b.size() + 1);
    for (int j = 0; j <= b.size(); ++j)
        row[j] = j;
    for (int i = 1; i <= a.size(); ++i) {
        int diagonal = row.at(0);
        row[0] = i;
        for (int j = 1; j <= b.size(); ++j) {
            const int replaced = diagonal + (a.at(i - 1) == b.at(j - 1) ? 0 : 1);
            diagonal = row.at(j);
            row[j] = std::min({replaced, row.at(j) + 1, row.at(j - 1) + 1});
        }
    }
    return row.last();
}

/// A name as it is compared: the colon at its end and the brackets of the messages do not count.
QString compared(const QString& name)
{
    QString text = name.trimmed().toLower();
    if (text.startsWith('[') && text.endsWith(']'))
        text = text.mid(1, text.size() - 2);
    while (text.endsWith(':') || text.endsWith('.'))
        text.chop(1);
    return text.trimmed();
}

} // namespace

bool AsmExplain::read(const QString& programDir)
{
    QStringList tried;
    for (const char* place : places) {
        QFile file(QDir::cleanPath(programDir + '/' + QLatin1String(place) + '/' + QLatin1String(fileName)));
        tried.append(file.fileName());
        if (!file.exists())
            continue;
        if (!file.open(QIODevice::ReadOnly)) {
            m_error = tr("Can not read %1: %2").arg(file.fileName(), file.errorString());
            return false;
        }
        parse(file.readAll());
        if (m_entries.isEmpty())
            m_error = tr("No entries of messages in %1").arg(file.fileName());
        return !m_entries.isEmpty();
    }
    m_error = tr("The help of the messages is not installed. Looked for: %1").arg(tried.join(QStringLiteral(", ")));
    return false;
}

void AsmExplain::parse(const QByteArray& text)
{
    for (const QByteArray& line : text.split('\n')) {
        if (!line.isEmpty() && !line.startsWith(' ')) {
            const QStringList fields = QString::fromUtf8(line).split('\t');
            m_entries.append({fields.value(0), fields.value(2), fields.value(3), QByteArray()});
        } else if (!m_entries.isEmpty()) {
            m_entries.last().body += line.mid(2) + '\n';
        }
    }
    for (Entry& entry : m_entries) {
        while (entry.body.endsWith("\n\n"))
            entry.body.chop(1);
    }
}

QByteArray AsmExplain::explanation(const QString& name) const
{
    const QString wanted = compared(name);
    struct sShown_t
    {
        QString heading;
        QStringList pages;
        QByteArray body;
    };
    QVector<sShown_t> shown;
    for (const Entry& entry : m_entries) {
        if (compared(entry.key) != wanted && compared(entry.heading) != wanted)
            continue;
        const auto isSame = [&](const sShown_t& other) { return other.body == entry.body; };
        const auto same = std::find_if(shown.begin(), shown.end(), isSame);
        if (same != shown.end())
            same->pages.append(entry.page);
        else
            shown.append({entry.heading, {entry.page}, entry.body});
    }
    QByteArray text;
    for (const sShown_t& part : qAsConst(shown)) {
        text += text.isEmpty() ? "" : "\n\n";
        text += (part.heading + QStringLiteral("  (") + part.pages.join(QStringLiteral(", ")) + ")\n\n").toUtf8();
        text += part.body;
    }
    return text;
}

QStringList AsmExplain::similarKeys(const QString& name) const
{
    const QString wanted = compared(name).left(maxNameLength);
    std::multimap<int, QString> found;
    QStringList keys;
    for (const Entry& entry : m_entries) {
        if (keys.contains(entry.key))
            continue;
        keys.append(entry.key);
        const QString key = compared(entry.key);
        const int changes = distance(wanted, key);
        const bool isPart = wanted.size() >= minPartLength && key.contains(wanted);
        if (isPart || changes <= std::max(2, wanted.size() / 3))
            found.insert({changes, entry.key});
    }
    QStringList similar;
    for (const auto& entry : found)
        similar.append(entry.second);
    return similar.mid(0, maxSimilar);
}

} // namespace nsNalvoAsm
