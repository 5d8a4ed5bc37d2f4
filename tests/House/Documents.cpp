#include "Documents.h"

#include "CppScan.h"

#include <QRegularExpression>

#include <algorithm>

namespace nsHouse {

namespace {

const QRegularExpression wordPattern("[A-Za-z_]\\w*");

void addWords(const QString& text, QSet<QString>& words)
{
    auto matches = wordPattern.globalMatch(text);
    while (matches.hasNext())
        words.insert(matches.next().captured());
}

/// The texts in backticks, and the lines of indented blocks.
QStringList codeOf(const QString& text)
{
    static const QRegularExpression code("`([^`]+)`|^ {4,}(\\S.*)$", QRegularExpression::MultilineOption);
    QStringList result;
    auto matches = code.globalMatch(text);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        result.append(match.captured(1) + match.captured(2));
    }
    return result;
}

/// Something that stands for many names, and no name itself.
bool isStandIn(const QString& word)
{
    static const QRegularExpression standIn("\\.\\.\\.|Xxx|Yyy|Zzz|(^|[/(])(NAME|FILE|TOPIC|FAMILY)|[='\"&<>%]");
    return word.contains(standIn);
}

bool isPath(const QString& word, const SourceTree& tree)
{
    static const QRegularExpression path("^(\\./)?[\\w.*-]+(/[\\w.*-]*)*$");
    static const QRegularExpression ending("\\.(h|cpp|txt|cmake|md|sh|list|supp)$");
    if (!path.match(word).hasMatch())
        return false;
    const QString top = word.section('/', 0, 0);
    // A key of the settings has slashes, too.
    const bool isInTree = word.contains('/') && (word.endsWith('/') || tree.exists(top) || top == "build");
    return isInTree || word.contains(ending);
}

} // namespace

Documents::Documents(const SourceTree& tree)
    : m_tree(tree)
{
    static const QRegularExpression isCode("\\.(h|cpp)$");
    static const QRegularExpression isBuild("CMakeLists\\.txt$|\\.(cmake|sh|list)$|^(run|test|bench/run)$");
    for (const QString& path : tree.all()) {
        m_paths.append('/' + path);
        addWords(path, m_words);
        if (path.contains(isCode))
            addWords(withoutComments(tree.text(path)), m_words);
        else if (path.contains(isBuild))
            addWords(tree.text(path), m_words);
    }
}

bool Documents::isThere(const QString& folder, const QString& path) const
{
    // What a build makes is known by its name.
    if (path.startsWith("build/"))
        return isKnown(path.section('/', -1));
    if (path.contains('*')) {
        const QRegularExpression wanted(QRegularExpression::wildcardToRegularExpression("/" + path));
        return std::any_of(m_paths.begin(), m_paths.end(),
                           [&](const QString& one) { return wanted.match(one).hasMatch(); });
    }
    if (m_tree.exists(path) || m_tree.exists(folder + path))
        return true;
    const QString end = "/" + path;
    return std::any_of(m_paths.begin(), m_paths.end(), [&](const QString& one) {
        return path.endsWith('/') ? one.contains(end) : one.endsWith(end) || one.contains(end + "/");
    });
}

bool Documents::isKnown(const QString& name) const
{
    auto words = wordPattern.globalMatch(name);
    while (words.hasNext()) {
        const QString word = words.next().captured();
        // Tables name modules without their prefix.
        if (!m_words.contains(word) && !m_words.contains("Mod" + word))
            return false;
    }
    return true;
}

QStringList Documents::unknownNames(const QString& document) const
{
    static const QRegularExpression blank("\\s+");
    static const QRegularExpression operation("(?<![\\w.])(\\w+::)*\\w+(?=\\(\\))|\\b(\\w+::)+\\w+");
    static const QRegularExpression capitals("(?<![\\w/.])[A-Z][a-z0-9]+[A-Z]\\w*(?![\\w/*]|\\.\\w)");
    const QString text = m_tree.text(document);
    const QString folder = document.contains('/') ? document.section('/', 0, -2) + "/" : QString();
    QStringList findings;
    for (const QString& code : codeOf(text)) {
        for (const QString& word : code.split(blank, Qt::SkipEmptyParts)) {
            if (!isStandIn(word) && isPath(word, m_tree) && !isThere(folder, word))
                findings.append(QString("%1: there is no %2").arg(document, word));
        }
    }
    for (const QRegularExpression& pattern : {operation, capitals}) {
        auto matches = pattern.globalMatch(text);
        while (matches.hasNext()) {
            const QString name = matches.next().captured();
            if (!isStandIn(name) && !isKnown(name))
                findings.append(QString("%1: the code has no %2").arg(document, name));
        }
    }
    findings.removeDuplicates();
    return findings;
}

} // namespace nsHouse
