#pragma once

#include "ImportFilterIf.h"
#include "RulePattern.h"

#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QStringList>

#include <array>

namespace nsModImport {

/// A filter whose rules stand in a text file; Common/asmImportFilter/README.md describes the rules.
///
/// A line is split into 13 fields. The first line tag rule that fits changes the fields together, tag rules change
/// instruction and operands one by one, and line text rules change the finished line.
class ImportFilterT001 : public QObject, public ImportFilterIf
{
    Q_OBJECT

public:
    /// The fields of a line, in their order in it.
    enum eField_t {
        fieldIndent = 0,
        fieldLabel = 1, ///< with its colon
        fieldLabelSpace = 2,
        fieldInstruction = 3,
        fieldInstructionSpace = 4,
        fieldArg0 = 5,
        fieldArg0Space = 6,
        fieldSep = 7, ///< a comma or nothing
        fieldSepSpace = 8,
        fieldArg1 = 9,
        fieldArg1Space = 10,
        fieldComment = 11,
        fieldRest = 12, ///< what could not be placed
        fieldCount = 13
    };

    static const int maxLineLength = 10000; ///< characters, of a line before and after its conversion
    static const int dfltTimeLimit = 2000;  ///< milliseconds

    explicit ImportFilterT001(const QString& path, QObject* parent = nullptr);

    // ImportFilterIf
    QString filterName() override { return m_name; }
    QString description() override { return m_description; }
    bool convertLine(QString* line) override;
    void setupRules() override;
    void clearRules() override;
    QString problem() override { return m_problem; }

    /// Splits the line into its fields. @return whether all of it found a place
    bool splitLine(const QString& line);
    /// The fields as one line again.
    QString mergeLine() const { return m_fields.join(QString()); }
    QString field(eField_t field) const { return m_fields.at(field); }
    /// Writes the fields to the standard output, for those who write filters.
    void printTags() const;

    /// Time for all rules of a line, in milliseconds, after which the line counts as not convertible.
    void setTimeLimit(int limit) { m_timeLimit = limit; }

private:
    /// The four fields that line tag rules test and change.
    static const int tagCount = 4;
    static const std::array<eField_t, tagCount> tagFields;

    /// What becomes of a field.
    struct sDestination_t
    {
        enum eKind_t { unchanged, literal, capture };
        eKind_t kind = unchanged;
        QString text;  ///< of a literal
        int test = -1; ///< whose capture it is, from 0 on
    };
    struct sLineRule_t
    {
        std::array<RulePattern, tagCount> tests; ///< of instruction, arg0, separator, arg1
        std::array<sDestination_t, tagCount> dst;
    };
    struct sTagRule_t
    {
        RulePattern test;
        QString text;
    };
    struct sLineTextRule_t
    {
        RulePattern test;
        QString text;
    };

    void readHead();
    void addRule(const QString& line);
    static sDestination_t destination(const QString& text);

    static QString splitLineSpace(const QString& line, int* pos);
    static QString splitLineLabel(const QString& line, int* pos);
    static QString splitLineText(const QString& line, int* pos);

    bool applyRules(QString* line);
    bool applyLineRules();
    bool matchesAll(sLineRule_t* rule, bool* tooLong);
    bool applyTagRules();
    bool applyTagRule(QString* field);
    bool fillTemplate(QString* field, const sTagRule_t& rule);
    bool applyLineTextRules(QString* line);
    bool mayGoOn(bool tooLong);
    bool fail(const QString& problem);

    QString m_path;
    QString m_name;
    QString m_description;
    QList<sLineRule_t> m_lineRules;
    QList<sTagRule_t> m_tagRules;
    QList<sLineTextRule_t> m_lineTextRules;
    QStringList m_fields;
    QString m_problem;
    QElapsedTimer m_timer; ///< since the line's conversion has begun
    int m_timeLimit = dfltTimeLimit;
};

} // namespace nsModImport
