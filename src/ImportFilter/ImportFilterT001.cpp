#include "ImportFilterT001.h"

#include "FilterText.h"

#include <QRegExp>
#include <QTextStream>

#include <cstdio>

namespace nsModImport {

namespace {

const char* const fieldNames[] = {"Spacer", "Label",  "Spacer", "Instruction", "Spacer",  "Arg0", "Spacer",
                                  "Sep",    "Spacer", "Arg1",   "Spacer",      "Comment", "Rest"};

QRegExp headPattern(const QString& word)
{
    return QRegExp('^' + word + QStringLiteral(":[\\s\\t]*(\\S+.*)[\\r\\n]+"));
}

QString repeated(const QString& text, int count)
{
    return QString(text).repeated(count);
}

const QString blank = QStringLiteral("[\\s\\t]+");
const QString quotedWord = QStringLiteral("\"(\\S*)\"");

} // namespace

const std::array<ImportFilterT001::eField_t, ImportFilterT001::tagCount> ImportFilterT001::tagFields = {
    fieldInstruction, fieldArg0, fieldSep, fieldArg1};

ImportFilterT001::ImportFilterT001(const QString& path, QObject* parent)
    : QObject(parent)
    , m_path(path)
{
    splitLine(QString());
    readHead();
}

// --- the file ---

void ImportFilterT001::readHead()
{
    QRegExp name = headPattern(QStringLiteral("name"));
    QRegExp description = headPattern(QStringLiteral("descr"));
    for (const QString& line : filterLines(m_path)) {
        if (m_name.isEmpty() && name.exactMatch(line))
            m_name = name.cap(1);
        else if (m_description.isEmpty() && description.exactMatch(line))
            m_description = description.cap(1);
    }
}

void ImportFilterT001::setupRules()
{
    for (const QString& line : filterLines(m_path))
        addRule(line);
}

void ImportFilterT001::clearRules()
{
    m_lineRules.clear();
    m_tagRules.clear();
    m_lineTextRules.clear();
}

/// A line that is no rule is a comment.
void ImportFilterT001::addRule(const QString& line)
{
    QRegExp lineRule("^[\\s\\t]*lineTagRule:" + repeated(blank + quotedWord, tagCount) +
                     repeated(blank + "(\\S*)", tagCount) + ".*");
    QRegExp tagRule("^[\\s\\t]*tagRule:" + blank + quotedWord + blank + "\"(.*)\".*");
    QRegExp lineTextRule("^[\\s\\t]*lineTextRule:" + blank + quotedWord + blank + quotedWord + ".*");
    if (lineRule.exactMatch(line)) {
        sLineRule_t rule;
        for (std::size_t i = 0; i < tagCount; ++i) {
            rule.tests[i] = RulePattern(lineRule.cap(int(i) + 1));
            rule.dst[i] = destination(lineRule.cap(int(i) + 1 + tagCount));
        }
        m_lineRules.append(rule);
    } else if (tagRule.exactMatch(line)) {
        m_tagRules.append({RulePattern(tagRule.cap(1)), tagRule.cap(2)});
    } else if (lineTextRule.exactMatch(line)) {
        m_lineTextRules.append({RulePattern(lineTextRule.cap(1)), lineTextRule.cap(2)});
    }
}

ImportFilterT001::sDestination_t ImportFilterT001::destination(const QString& text)
{
    sDestination_t result;
    QRegExp quoted(QStringLiteral("\"(.*)\""));
    if (quoted.exactMatch(text)) {
        result.kind = sDestination_t::literal;
        result.text = quoted.cap(1);
        return result;
    }
    const int number = text.toInt();
    if (number < 1 || number > tagCount) {
        QTextStream(stdout) << "Source field reference exceeds range: " << number << '\n';
        return result;
    }
    result.kind = sDestination_t::capture;
    result.test = number - 1;
    return result;
}

// --- the fields of a line ---

QString ImportFilterT001::splitLineSpace(const QString& line, int* pos)
{
    const int start = *pos;
    while (*pos < line.size() && line.at(*pos).isSpace())
        ++*pos;
    return line.mid(start, *pos - start);
}

QString ImportFilterT001::splitLineLabel(const QString& line, int* pos)
{
    for (int i = *pos; i < line.size(); ++i) {
        const QChar c = line.at(i);
        if (c == ',' || c == ';' || c == '"' || c.isSpace())
            break;
        if (c == ':') {
            const QString label = line.mid(*pos, i + 1 - *pos);
            *pos = i + 1;
            return label;
        }
    }
    return QString();
}

QString ImportFilterT001::splitLineText(const QString& line, int* pos)
{
    const int start = *pos;
    bool isQuoted = false;
    for (; *pos < line.size(); ++*pos) {
        const QChar c = line.at(*pos);
        if (c == '\\') {
            // Takes the next character with it, whatever it is.
            ++*pos;
            continue;
        }
        if (c == '"')
            isQuoted = !isQuoted;
        else if (!isQuoted && (c == ',' || c == ';' || c.isSpace()))
            break;
    }
    *pos = qMin(*pos, line.size());
    return line.mid(start, *pos - start);
}

bool ImportFilterT001::splitLine(const QString& line)
{
    int pos = 0;
    const auto isNext = [&](char c) { return pos < line.size() && line.at(pos) == c; };
    m_fields.clear();
    m_fields << splitLineSpace(line, &pos);
    m_fields << splitLineLabel(line, &pos);
    m_fields << splitLineSpace(line, &pos);
    m_fields << splitLineText(line, &pos);
    m_fields << splitLineSpace(line, &pos);
    m_fields << splitLineText(line, &pos);
    m_fields << splitLineSpace(line, &pos);
    m_fields << (isNext(',') ? line.mid(pos++, 1) : QString());
    m_fields << splitLineSpace(line, &pos);
    m_fields << splitLineText(line, &pos);
    m_fields << splitLineSpace(line, &pos);
    const bool hasComment = isNext(';');
    m_fields << (hasComment ? line.mid(pos) : QString());
    m_fields << (hasComment ? QString() : line.mid(pos));
    return m_fields.at(fieldRest).isEmpty();
}

void ImportFilterT001::printTags() const
{
    QTextStream out(stdout);
    for (int i = 0; i < fieldCount; ++i)
        out << QString("Tag %1: %2 ").arg(i, 2).arg(fieldNames[i], -11) << m_fields.at(i) << '\n';
}

// --- conversion ---

bool ImportFilterT001::fail(const QString& problem)
{
    m_problem = problem;
    return false;
}

/// After each rule: a match can not be interrupted, but its work is bounded, so that time is looked at often enough.
bool ImportFilterT001::mayGoOn(bool tooLong)
{
    if (tooLong)
        return fail(tr("A rule of the import filter would take too long for this line."));
    if (m_timer.elapsed() >= m_timeLimit)
        return fail(tr("The rules of the import filter take too long for this line."));
    return true;
}

bool ImportFilterT001::convertLine(QString* line)
{
    m_problem.clear();
    m_timer.start();
    if (line->size() > maxLineLength)
        return fail(tr("The line is too long."));
    if (!splitLine(*line))
        return false;
    QString result;
    if (!applyRules(&result))
        return false;
    if (result.size() > maxLineLength)
        return fail(tr("The converted line is too long."));
    *line = result;
    return true;
}

bool ImportFilterT001::applyRules(QString* line)
{
    if (!applyLineRules() || !applyTagRules())
        return false;
    *line = mergeLine();
    return applyLineTextRules(line);
}

bool ImportFilterT001::matchesAll(sLineRule_t* rule, bool* tooLong)
{
    for (std::size_t i = 0; i < tagCount; ++i) {
        if (!rule->tests[i].matches(m_fields.at(tagFields[i]), tooLong))
            return false;
    }
    return true;
}

/// The first rule that fits, and no other.
bool ImportFilterT001::applyLineRules()
{
    for (sLineRule_t& rule : m_lineRules) {
        bool tooLong = false;
        const bool fits = matchesAll(&rule, &tooLong);
        if (!mayGoOn(tooLong))
            return false;
        if (!fits)
            continue;
        for (std::size_t i = 0; i < tagCount; ++i) {
            const sDestination_t& dst = rule.dst[i];
            if (dst.kind == sDestination_t::literal)
                m_fields[tagFields[i]] = dst.text;
            else if (dst.kind == sDestination_t::capture)
                m_fields[tagFields[i]] = rule.tests[std::size_t(dst.test)].cap(1);
        }
        return true;
    }
    return true;
}

bool ImportFilterT001::applyTagRules()
{
    return applyTagRule(&m_fields[fieldInstruction]) && applyTagRule(&m_fields[fieldArg0]) &&
           applyTagRule(&m_fields[fieldArg1]);
}

/// The first rule that fits the whole field.
bool ImportFilterT001::applyTagRule(QString* field)
{
    for (sTagRule_t& rule : m_tagRules) {
        bool tooLong = false;
        const bool fits = rule.test.matches(*field, &tooLong);
        if (!mayGoOn(tooLong))
            return false;
        if (fits)
            return fillTemplate(field, rule);
    }
    return true;
}

bool ImportFilterT001::fillTemplate(QString* field, const sTagRule_t& rule)
{
    static const QRegExp placeholder(QStringLiteral("%[0-4]{1}"));
    const int count = rule.text.count(placeholder);
    QString text = rule.text;
    for (int i = 1; count <= tagCount && i <= count; ++i) {
        // A capture may hold placeholders itself, so the text can grow with each turn.
        if ((text.count('%') + 1.0) * rule.test.cap(i).size() > maxLineLength)
            return fail(tr("The converted line is too long."));
        // Without a placeholder left there is nothing to fill.
        if (text.contains(QRegExp(QStringLiteral("%\\d"))))
            text = text.arg(rule.test.cap(i));
    }
    *field = text;
    return true;
}

bool ImportFilterT001::applyLineTextRules(QString* line)
{
    if (line->isEmpty())
        return true;
    for (sLineTextRule_t& rule : m_lineTextRules) {
        const bool isDone = rule.test.replaceAll(line, rule.text);
        if (!mayGoOn(!isDone))
            return false;
        if (line->size() > maxLineLength)
            return fail(tr("The converted line is too long."));
    }
    return true;
}

} // namespace nsModImport
