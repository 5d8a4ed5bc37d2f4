#include "CppScan.h"

#include <gtest/gtest.h>

using namespace nsHouse;

namespace {

/// "name:line+lines" of each function.
std::string functionsIn(const char* text)
{
    QStringList result;
    const CppScan scan(text);
    for (const sFunction_t& one : scan.functions())
        result.append(QString("%1:%2+%3").arg(one.name).arg(one.line).arg(one.lines));
    return result.join(' ').toStdString();
}

/// "name operations/members" of each class.
std::string classesIn(const char* text)
{
    QStringList result;
    const CppScan scan(text);
    for (const sClass_t& one : scan.classes())
        result.append(QString("%1 %2/%3").arg(one.name).arg(one.operations).arg(one.members));
    return result.join(' ').toStdString();
}

} // namespace

TEST(CppScan, textsAndCommentsAreBlank)
{
    EXPECT_EQ(
        withoutTexts("a \"{\\\"\" b // {\nc /* {\n */ d '{' 1'000 R\"x({\n)x\" e\n#define F {\\\n{\ng").toStdString(),
        "a       b     \nc     \n    d     1'000      \n    e\n            \n \ng");
    EXPECT_EQ(withoutComments("a \"//\" // b\n#include \"c\"").toStdString(), "a \"//\"     \n#include \"c\"");
}

TEST(CppScan, functionsOfAFile)
{
    EXPECT_EQ(
        functionsIn("namespace n {\nint f()\n{\n    if (a) {\n    }\n    return 0;\n}\n\nvoid C::g() const { }\n}\n"),
        "f:2+6 C::g:9+1");
}

TEST(CppScan, aSignatureOfTwoLinesCounts)
{
    EXPECT_EQ(functionsIn("QString C::f(int a,\n           int b) const\n{\n}\n"), "C::f:1+4");
}

TEST(CppScan, aConstructorWithInitializers)
{
    EXPECT_EQ(functionsIn("C::C(int a)\n    : B(a)\n    , m_a{1, 2}\n    , m_b(3)\n{\n    f();\n}\n"), "C::C:1+7");
    EXPECT_EQ(functionsIn("C::C()\n    : m_b(3)\n    , m_a{1}\n{\n}\nvoid g() { }"), "C::C:1+5 g:6+1");
}

TEST(CppScan, aTableIsNoFunction)
{
    EXPECT_EQ(functionsIn("const int table[] = {\n 1,\n 2,\n};\nconst T t{f(1)};\nint f() { return 1; }\n"), "f:6+1");
}

TEST(CppScan, aTableInAFunctionDoesNotCount)
{
    EXPECT_EQ(
        functionsIn(
            "T f()\n{\n    static const T t = {\n        1,\n        {2,\n         3},\n    };\n    return t;\n}\n"),
        "f:1+5");
    EXPECT_EQ(functionsIn(
                  "void f()\n{\n    for (int a : {\n            1,\n            2})\n    {\n        g();\n    }\n}\n"),
              "f:1+7");
    EXPECT_EQ(functionsIn("T f()\n{\n    return {[] {\n        g();\n        h();\n    }};\n}\n"), "f:1+7");
}

TEST(CppScan, lambdasBelongToTheirFunction)
{
    EXPECT_EQ(functionsIn("void f()\n{\n    g([](int a) {\n        h();\n    });\n}\n"), "f:1+6");
    EXPECT_EQ(functionsIn("const auto a = [](int b) {\n return b;\n};\nvoid f() { }\n"), "f:4+1");
}

TEST(CppScan, operatorsAndTemplates)
{
    EXPECT_EQ(functionsIn("template <class T, int n>\nbool operator==(const A<T>& a, const A<T>& b)\n{\n}\n"),
              "operator==:1+4");
    EXPECT_EQ(functionsIn("std::function<int(int)> C::f(std::function<void()> g = {})\n{\n}\n"), "C::f:1+3");
    EXPECT_EQ(functionsIn("auto f() -> QList<int>\n{\n}\n"), "f:1+3");
}

TEST(CppScan, operationsAndMembersOfAClass)
{
    EXPECT_EQ(
        classesIn("class B;\nclass C : public B<int>\n{\n    Q_OBJECT\n    Q_PROPERTY(int a READ a)\n\npublic:\n"
                  "    enum eA_t { eB, eC };\n    C();\n    ~C() override;\n    C(const C&) = delete;\n"
                  "    virtual int a() const = 0;\n    int b() const { return m_b; }\n"
                  "    bool operator<(const C& c) const;\n    using B::B;\n    friend class D;\n\nsignals:\n"
                  "    void changed();\n\nprivate:\n    static constexpr int limit = 3;\n"
                  "    std::function<void(int, int)> m_f;\n    int m_b = f(1), m_c;\n    QMap<int, int> m_d{{1, 2}};\n"
                  "    D* m_e = nullptr;\n};\n"),
        "C 3/5");
}

TEST(CppScan, classesInClasses)
{
    EXPECT_EQ(
        classesIn("class C\n{\n    void f();\n    struct sD_t\n    {\n        int a = 0;\n        int b;\n    };\n"
                  "    sD_t m_d;\n    void g() { }\n};\n"),
        "C 2/1 sD_t 0/2");
}
