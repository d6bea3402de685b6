#include "blocks/CBlock_func.h"

#include "tests/blocks/BlockText.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace io {
namespace {

/// The next argument as an int, or -777 where it is none.
int ReadInt(CBlock_func& func) {
    int value = -777;
    func >> value;
    return value;
}

TEST(CBlock_funcTest, AppendedFuncsAreCopies) {
    CBlock_func outer("outer");
    CBlock_func inner("inner");
    inner << 1;
    outer << inner << 9;
    inner << 2;
    outer << inner;
    EXPECT_EQ(Outline(outer), "outer(inner(1) 9 inner(1 2))");
}

TEST(CBlock_funcTest, AppendedPointersAreReferences) {
    CBlock_func outer("outer");
    CBlockFuncPtr before("before");
    *before << 1;
    CBlockFuncPtr after("after");
    outer << before << after << CBlock_ptr<CBlock_func>(before.GetPtr());
    *before << 2;
    *after << 3;
    EXPECT_EQ(Outline(outer), "outer(before(1 2) after(3) before(1 2))");
}

TEST(CBlock_funcTest, AnItemThatStandsByReferenceIsTheObjectItself) {
    CBlock_func outer("outer");
    const CBlockFuncPtr inner("inner");
    outer << inner;
    EXPECT_EQ(outer.Item(outer.begin()).Item(), &*inner);
}

TEST(CBlock_funcTest, ANullPointerLeavesAPlaceThatStandsForNothing) {
    CBlock_func func("f");
    func << CBlock_ptr<CBlock_func>() << 7;
    EXPECT_EQ(Outline(func), "f(null 7)");
    EXPECT_EQ(func.Size(), 2);
    EXPECT_EQ(ReadInt(func), -777);
    EXPECT_EQ(TextOf(func), "f(7)\n");
}

TEST(CBlock_funcTest, AppendedTokensKeepTheirKind) {
    CBlock_func func("f");
    func << CToken::OfWord("007") << CToken::OfText("007") << CToken::OfNode(Node(NodeKind::k_Int, 7))
         << CToken::OfWord("w") << CToken::OfWord("averyveryverylongword") << CToken::OfText("averyveryverylongtext");
    EXPECT_EQ(Outline(func), "f(007 \"007\" 7 w averyveryverylongword \"averyveryverylongtext\")");
    AString text;
    AString word;
    EXPECT_EQ(ReadInt(func), 7);
    func >> text;
    EXPECT_EQ(ReadInt(func), 7);
    func >> word;
    EXPECT_EQ(text.QRL_ANSI(), "007");
    EXPECT_EQ(word.QRL_ANSI(), "w");
}

TEST(CBlock_funcTest, AFuncCanBeAppendedToItself) {
    CBlock_func func("f");
    func << 1;
    func << func;
    EXPECT_EQ(Outline(func), "f(1 f(1))");
    func << func;
    EXPECT_EQ(Outline(func), "f(1 f(1) f(1 f(1)))");
}

TEST(CBlock_funcTest, APartOfAFuncCanBeAppendedToIt) {
    CBlock_func func = FuncOf("(f (g 1 (h)) 2)");
    CBlock_func part("g");
    func >> part;
    func << part;
    part << func;
    EXPECT_EQ(Outline(func), "f(g(1 h()) 2 g(1 h()))");
    EXPECT_EQ(Outline(part), "g(1 h() f(g(1 h()) 2 g(1 h())))");
}

TEST(CBlock_funcTest, ACopyDoesNotSeeLaterChanges) {
    CBlock_func func = FuncOf("(f 1 (g))");
    const CBlock_func copy = func;
    CBlock_func assigned("x");
    assigned = func;
    func << 2;
    func.Name("renamed");
    EXPECT_EQ(Outline(func), "renamed(1 g() 2)");
    EXPECT_EQ(Outline(copy), "f(1 g())");
    EXPECT_EQ(Outline(assigned), "f(1 g())");
    assigned.Clear();
    EXPECT_EQ(Outline(assigned), "f()");
    EXPECT_EQ(Outline(copy), "f(1 g())");
}

TEST(CBlock_funcTest, ACopyIsReadOnFromTheSamePlace) {
    CBlock_func func = FuncOf("(f 1 2 3)");
    ReadInt(func);
    CBlock_func copy = func;
    EXPECT_EQ(ReadInt(copy), 2);
    EXPECT_EQ(ReadInt(copy), 3);
    EXPECT_EQ(ReadInt(func), 2);
}

TEST(CBlock_funcTest, AFuncCanBeAssignedFromAnArgumentThatItAloneKeeps) {
    CBlock_func func("outer");
    CBlock_func* raw = nullptr;
    {
        CBlockFuncPtr inner("inner");
        *inner << 1 << "averyveryverylongtext";
        func << inner;
        raw = &*inner;
    }
    func = *raw;
    EXPECT_EQ(Outline(func), "inner(1 \"averyveryverylongtext\")");
}

TEST(CBlock_funcTest, CopiesShareWhatStandsByReference) {
    int alive = 0;
    {
        CBlock_func func("f");
        func << NewCounted("g", alive);
        CBlock_func copy = func;
        copy << 1;
        EXPECT_EQ(alive, 1);
        EXPECT_EQ(func.Item(func.begin()).Item(), copy.Item(copy.begin()).Item());
        func.Clear();
        EXPECT_EQ(alive, 1);
        copy = CBlock_func("other");
        EXPECT_EQ(alive, 0);
    }
    EXPECT_EQ(alive, 0);
}

TEST(CBlock_funcTest, APartKeepsTheReferencesThatStandInIt) {
    int alive = 0;
    {
        CBlock_func part("part");
        {
            CBlock_func inner("part");
            inner << NewCounted("g", alive);
            CBlock_func outer("outer");
            outer << inner;
            outer >> part;
        }
        EXPECT_EQ(alive, 1);
        part << 1;
        EXPECT_EQ(Outline(part), "part(g() 1)");
        EXPECT_EQ(alive, 1);
    }
    EXPECT_EQ(alive, 0);
}

TEST(CBlock_funcTest, ANameCanBeReplacedByAnyText) {
    CBlock_func func = FuncOf("(f 1 (g) averyveryverylongword)");
    for (const char* name : {"", "n", "tenletters", "elevenletter", "averyveryveryverylongname", "\xFF \""}) {
        func.Name(name);
        EXPECT_EQ(func.Name().QRL_ANSI(), name);
        EXPECT_EQ(func.NameToken().GetNarrow(), name);
        EXPECT_EQ(Outline(func), std::string(name) + "(1 g() averyveryverylongword)");
    }
}

TEST(CBlock_funcTest, TheNameTokenFollowsTheName) {
    CBlock_func func("first");
    EXPECT_EQ(func.NameToken().GetNarrow(), "first");
    func = CBlock_func("second");
    EXPECT_EQ(func.NameToken().GetNarrow(), "second");
    FuncOf("(x (SECOND))") >> func;
    EXPECT_EQ(func.NameToken().GetNarrow(), "SECOND");
    EXPECT_TRUE(func.NameIs("second"));
    EXPECT_FALSE(func.NameIs("seconds"));
}

TEST(CBlock_funcTest, ClearDropsTheArgumentsAndKeepsTheName) {
    CBlock_func func = FuncOf("(f 1 (g) 2)");
    ReadInt(func);
    func.Clear();
    EXPECT_EQ(Outline(func), "f()");
    EXPECT_TRUE(func.Empty());
    func << 5;
    EXPECT_EQ(ReadInt(func), 5);
}

TEST(CBlock_funcTest, TheMemoryOfTheTreeIsCountedOnDemand) {
    const CBlock_func func = FuncOf("(f 1 2 3)");
    EXPECT_EQ(func.SizeOf(false), sizeof(CBlock_func));
    EXPECT_GE(func.SizeOf(true), sizeof(CBlock_func) + 4 * sizeof(Node));
    EXPECT_LT(func.SizeOf(true), sizeof(CBlock_func) + 100 * sizeof(Node)) << "little is set aside for growth";
}

/// A func as a plain program would keep it.
struct Model {
    std::string m_Name;
    std::vector<std::string> m_Arguments; ///< outlines

    std::string GetOutline() const {
        std::string text = m_Name + '(';
        for (size_t i = 0; i < m_Arguments.size(); ++i)
            text += (i == 0 ? "" : " ") + m_Arguments[i];
        return text + ')';
    }
};

TEST(CBlock_funcTest, RandomChangesOfSharedFuncsFollowAModelOfPlainValues) {
    std::mt19937 random(4711);
    constexpr size_t k_Count = 5;
    const std::string names[] = {"a", "tenletters", "elevenletter", "avery very very long name"};
    std::vector<CBlock_func> funcs(k_Count, CBlock_func("a"));
    std::vector<Model> models(k_Count, Model{"a", {}});
    for (int step = 0; step < 5000; ++step) {
        const size_t to = random() % k_Count;
        const size_t from = random() % k_Count;
        const std::string text(random() % 20, 'x');
        CBlock_func& func = funcs[to];
        Model& model = models[to];
        const auto operation = random() % 12;
        if (operation == 0 || model.GetOutline().size() > 400) {
            func.Clear();
            model.m_Arguments.clear();
        } else if (operation <= 2) {
            func = funcs[from];
            model = Model(models[from]);
        } else if (operation <= 4) {
            model.m_Arguments.push_back(models[from].GetOutline());
            func << funcs[from];
        } else if (operation <= 6) {
            func.Name(names[step % 4].c_str());
            model.m_Name = names[step % 4];
        } else if (operation <= 8) {
            func << CToken::OfWord(text);
            model.m_Arguments.push_back(text);
        } else {
            func << step;
            model.m_Arguments.push_back(std::to_string(step));
        }
        for (size_t i = 0; i < k_Count; ++i)
            ASSERT_EQ(Outline(funcs[i]), models[i].GetOutline()) << "step " << step;
    }
}

} // namespace
} // namespace io
