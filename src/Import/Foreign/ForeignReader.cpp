#include "ForeignReader.h"

#include "ForeignScanner.h"

#include "Utf8.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace nsImport {

namespace {

const char endOfFile = 0x1A; ///< of old systems

QString withoutLinks(const QString& path)
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    return canonical.isEmpty() ? QDir::cleanPath(QFileInfo(path).absoluteFilePath()) : canonical;
}

} // namespace

ForeignReader::ForeignReader(const QString& mainFile, const QStringList& folders, ImportMessages& messages)
    : m_mainFile(QFileInfo(mainFile).absoluteFilePath())
    , m_messages(messages)
{
    for (const QString& folder : folders)
        m_folders.append(QFileInfo(folder).absoluteFilePath());
    m_roots.append(withoutLinks(QFileInfo(m_mainFile).absolutePath()));
    for (const QString& folder : qAsConst(m_folders))
        m_roots.append(withoutLinks(folder));
}

bool ForeignReader::readMain(QString* text)
{
    const Content* content = contentOf(m_mainFile, m_mainFile, QString(), 0);
    if (content == nullptr)
        return false;
    *text = content->lines.join(QLatin1Char('\n'));
    return true;
}

bool ForeignReader::read(const ForeignDialect& dialect, ForeignProgram* program)
{
    program->dialect = &dialect;
    m_stack.clear();
    m_allBytes = 0;
    return readFile(m_mainFile, QFileInfo(m_mainFile).fileName(), dialect, program);
}

/// The lines of a file, each file read once. @param from, line where it is named, for messages
const ForeignReader::Content* ForeignReader::contentOf(const QString& path, const QString& shown, const QString& from,
                                                       int line)
{
    const auto known = m_contents.constFind(path);
    if (known != m_contents.constEnd())
        return &known.value();
    const QFileInfo info(path);
    if (path.isEmpty() || (info.exists() && !info.isFile())) {
        m_messages.add(errImpNotAFile, {shown}, from, line);
        return nullptr;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        m_messages.add(errImpCannotRead, {shown, file.errorString()}, from, line);
        return nullptr;
    }
    const QByteArray bytes = file.read(maxFileBytes + 1);
    if (bytes.size() > maxFileBytes) {
        m_messages.add(errImpTooLarge, {shown, QString::number(maxFileBytes >> 20)}, from, line);
        return nullptr;
    }
    if (file.error() != QFile::NoError) {
        m_messages.add(errImpCannotRead, {shown, file.errorString()}, from, line);
        return nullptr;
    }
    Content content;
    if (!decode(bytes, path, &content))
        return nullptr;
    m_filesRead.insert(withoutLinks(path));
    return &m_contents.insert(path, content).value();
}

bool ForeignReader::decode(const QByteArray& bytes, const QString& path, Content* content)
{
    content->bytes = bytes.size();
    int size = bytes.size();
    while (size > 0 && bytes.at(size - 1) == endOfFile)
        --size;
    for (int i = 0, line = 1; i < size; ++i) {
        const char c = bytes.at(i);
        line += int(c == '\n');
        if (c == '\0' || c == endOfFile) {
            m_messages.add(errImpBinary, {QString("0x%1").arg(int(c), 2, 16, QLatin1Char('0')).toUpper()}, path, line);
            return false;
        }
    }
    QString text;
    content->isUtf8 = Utf8::decode(QByteArray::fromRawData(bytes.constData(), size), &text);
    if (!content->isUtf8)
        text = QString::fromLatin1(bytes.constData(), size);
    if (text.startsWith(QChar(QChar::ByteOrderMark)))
        text.remove(0, 1);
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    content->lines = text.split(QLatin1Char('\n'));
    if (content->lines.last().isEmpty())
        content->lines.removeLast();
    for (int i = 0; i < content->lines.size(); ++i) {
        if (content->lines.at(i).size() > maxLineLength) {
            m_messages.add(errImpLineTooLong, {QString::number(maxLineLength)}, path, i + 1);
            return false;
        }
    }
    return true;
}

bool ForeignReader::readFile(const QString& path, const QString& name, const ForeignDialect& dialect,
                             ForeignProgram* program)
{
    const Content* found = contentOf(path, name, QString(), 0);
    if (found == nullptr)
        return false;
    // A copy, since the contents of other files come into the same table.
    const Content content = *found;
    m_allBytes += content.bytes;
    if (m_allBytes > maxAllBytes) {
        m_messages.add(errImpTooLarge, {name, QString::number(maxAllBytes >> 20)});
        return false;
    }
    if (program->statements.size() + content.lines.size() > maxLines) {
        m_messages.add(errImpTooManyLines, {QString::number(maxLines)}, path);
        return false;
    }
    const int file = program->files.size();
    program->files.append({path, name, content.isUtf8});
    m_stack.append(withoutLinks(path));
    ForeignScanner scanner(dialect);
    for (int i = 0; i < content.lines.size(); ++i) {
        ForeignStatement statement;
        statement.file = file;
        statement.line = i + 1;
        statement.text = content.lines.at(i);
        scanner.scan(&statement);
        if (statement.op() == opEnd && statement.hasWord())
            endsAt(&statement, path, content, &scanner);
        program->statements.append(statement);
        if (statement.op() == opInclude && statement.hasWord() && !include(statement, dialect, program))
            return false;
    }
    if (scanner.isOpen()) {
        m_messages.add(errImpSyntax, {QStringLiteral("/*")}, path, content.lines.size());
        program->statements.last().isBroken = true;
    }
    m_stack.removeLast();
    return true;
}

/// The statement ends the program. What follows is kept as comments.
void ForeignReader::endsAt(ForeignStatement* statement, const QString& path, const Content& content,
                           ForeignScanner* scanner)
{
    const QString word = statement->part(statement->word);
    if (m_stack.size() > 1) {
        // Whether the files that include this one go on is not agreed.
        m_messages.add(errImpNoCounterpart, {word, tr("the end of the program in an included file")}, path,
                       statement->line);
        statement->isBroken = true;
        return;
    }
    scanner->end();
    int left = 0;
    for (int i = statement->line; i < content.lines.size(); ++i)
        left += int(!content.lines.at(i).trimmed().isEmpty());
    if (left > 0)
        m_messages.add(infoImpAfterEnd, {word, QString::number(left)}, path, statement->line);
}

bool ForeignReader::include(const ForeignStatement& statement, const ForeignDialect& dialect, ForeignProgram* program)
{
    const QString from = program->files.at(statement.file).path;
    QString name = statement.operand(0);
    if (name.size() >= 2 && name.startsWith('"') && name.endsWith('"'))
        name = name.mid(1, name.size() - 2);
    const QString shown = name;
    name.replace(QLatin1Char('\\'), QLatin1Char('/'));
    if (statement.operands.size() != 1 || name.isEmpty()) {
        m_messages.add(errImpSyntax, {statement.code.trimmed()}, from, statement.line);
        return false;
    }
    QString refused;
    const QString path = find(name, QFileInfo(from).absolutePath(), &refused);
    if (path.isEmpty()) {
        if (refused.isEmpty())
            m_messages.add(errImpIncludeMissing, {shown}, from, statement.line);
        else
            m_messages.add(errImpIncludeOutside, {shown, QFileInfo(refused).absolutePath()}, from, statement.line);
        return false;
    }
    if (QFileInfo(path).fileName() != QFileInfo(name).fileName())
        m_messages.add(infoImpIncludeCase, {shown, QFileInfo(path).fileName()}, from, statement.line);
    if (m_stack.contains(withoutLinks(path))) {
        m_messages.add(errImpIncludeCycle, {shown}, from, statement.line);
        return false;
    }
    if (m_stack.size() >= maxDepth) {
        m_messages.add(errImpIncludeDepth, {QString::number(maxDepth)}, from, statement.line);
        return false;
    }
    if (program->files.size() >= maxFiles) {
        m_messages.add(errImpTooManyFiles, {QString::number(maxFiles)}, from, statement.line);
        return false;
    }
    return contentOf(path, shown, from, statement.line) != nullptr && readFile(path, shown, dialect, program);
}

/// Where an included file is: beside the file that names it, beside the main source, or in a folder of the user.
/// @param refused a file that is there, but may not be read
QString ForeignReader::find(const QString& name, const QString& fromDir, QString* refused) const
{
    QStringList dirs{fromDir, QFileInfo(m_mainFile).absolutePath()};
    dirs += m_folders;
    for (const QString& dir : qAsConst(dirs)) {
        const QString path = existing(dir, name);
        if (path.isEmpty())
            continue;
        if (isAllowed(path))
            return path;
        if (refused->isEmpty())
            *refused = path;
    }
    return QString();
}

/// Path of the file, whose last part may be written in another case: the old tools run where that does not matter.
QString ForeignReader::existing(const QString& dir, const QString& name)
{
    const QString path = QDir::cleanPath(QDir(dir).absoluteFilePath(name));
    if (QFileInfo::exists(path))
        return path;
    const QFileInfo info(path);
    const QStringList names = QDir(info.absolutePath()).entryList(QDir::Files, QDir::Name);
    for (const QString& other : names) {
        if (other.compare(info.fileName(), Qt::CaseInsensitive) == 0)
            return info.absolutePath() + '/' + other;
    }
    return QString();
}

bool ForeignReader::isAllowed(const QString& path) const
{
    const QString real = withoutLinks(path);
    for (const QString& root : m_roots) {
        if (real.startsWith(root.endsWith('/') ? root : root + '/'))
            return true;
    }
    return false;
}

} // namespace nsImport
