#include "DialectFinder.h"

#include "ForeignScanner.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>

namespace nsImport {

namespace {

const int maxLines = 20000;

/// How well a source fits a dialect.
struct Score
{
    int understood = 0; ///< statements with a word and operands of the dialect
    int strange = 0;    ///< statements with an unknown word, or operands of another dialect
    QHash<QString, int> words;
};

/// Is it a register of a processor with other names?
bool isForeignRegister(const ForeignDialect& dialect, const QString& operand)
{
    const ForeignDialect& other = dialect.dialect == ForeignDialect::eMico8 ? kcpsm3Dialect() : mico8Dialect();
    return dialect.registerOf(operand) < 0 && other.registerOf(operand) >= 0;
}

Score scoreOf(const ForeignDialect& dialect, const QStringList& lines)
{
    Score score;
    ForeignScanner scanner(dialect);
    for (int i = 0; i < lines.size() && i < maxLines; ++i) {
        ForeignStatement statement;
        statement.text = lines.at(i);
        scanner.scan(&statement);
        if (!statement.hasWord())
            continue;
        const bool isStrange = statement.meaning == nullptr || isForeignRegister(dialect, statement.operand(0));
        score.strange += int(isStrange);
        score.understood += int(!isStrange);
        if (!isStrange)
            ++score.words[statement.part(statement.word).toUpper()];
    }
    return score;
}

} // namespace

DialectFinder::DialectFinder(const QString& text)
{
    const QStringList lines = text.split(QLatin1Char('\n'));
    Score scores[ForeignDialect::eDialectCount];
    int best = -1;
    for (int i = 0; i < ForeignDialect::eDialectCount; ++i) {
        scores[i] = scoreOf(ForeignDialect::of(ForeignDialect::eDialect_t(i)), lines);
        // Of two that fit alike, the first one, which has fewer words.
        if (scores[i].understood > 0 && (best < 0 || scores[i].understood > scores[best].understood))
            best = i;
    }
    if (best < 0)
        return;
    dialect = &ForeignDialect::of(ForeignDialect::eDialect_t(best));
    // What tells it are the words that the runner-up does not have; else the most frequent ones.
    QStringList words;
    for (auto word = scores[best].words.cbegin(); word != scores[best].words.cend(); ++word)
        words.append(word.key());
    std::sort(words.begin(), words.end(), [&](const QString& a, const QString& b) {
        const auto others = [&](const QString& word) {
            int count = 0;
            for (int i = 0; i < ForeignDialect::eDialectCount; ++i)
                count += int(ForeignDialect::of(ForeignDialect::eDialect_t(i)).find(word) != nullptr);
            return count;
        };
        const int othersOfA = others(a);
        const int othersOfB = others(b);
        const int countOfA = scores[best].words.value(a);
        const int countOfB = scores[best].words.value(b);
        return othersOfA != othersOfB ? othersOfA < othersOfB : countOfA != countOfB ? countOfA > countOfB : a < b;
    });
    because = QCoreApplication::translate("nsImport::DialectFinder", "%1 of %2 lines with a word fit, such as %3")
                  .arg(scores[best].understood)
                  .arg(scores[best].understood + scores[best].strange)
                  .arg(QStringList(words.mid(0, 3)).join(QStringLiteral(", ")));
    // The same lines are other words for another processor, or with numbers that are written in another way.
    QStringList others;
    for (int i = best + 1; i < ForeignDialect::eDialectCount; ++i) {
        if (scores[i].understood == scores[best].understood)
            others.append(QLatin1String(ForeignDialect::of(ForeignDialect::eDialect_t(i)).title));
    }
    if (!others.isEmpty())
        because += QCoreApplication::translate("nsImport::DialectFinder", "; but %1 fits as well")
                       .arg(others.join(QStringLiteral(", ")));
}

} // namespace nsImport
