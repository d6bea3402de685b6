#include "model/RecordList_T.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace {

/// A record that counts how many of its kind are alive.
class Record {
public:
    Record(const char* name, int& alive) : m_Name(name), m_Alive(&alive) { ++alive; }
    Record(const Record&) = delete;
    Record& operator=(const Record&) = delete;
    virtual ~Record() { --*m_Alive; }
    const AString& GetName() const { return m_Name; }

private:
    AString m_Name;
    int* m_Alive;
};

class SpecialRecord : public Record {
public:
    using Record::Record;
    bool IsSpecial() const { return true; }
};

class RecordList_TTest : public testing::Test {
protected:
    Record* Add(const char* name) { return list.Add(std::make_unique<Record>(name, alive)); }

    int alive = 0;
    RecordList_T<Record> list;
};

TEST_F(RecordList_TTest, AnEmptyListHoldsNothing) {
    EXPECT_TRUE(list.IsEmpty());
    EXPECT_EQ(list.GetSize(), 0U);
    EXPECT_EQ(list.begin(), list.end());
    EXPECT_EQ(list.Find(""), nullptr);
}

TEST_F(RecordList_TTest, KeepsTheOrderInWhichRecordsWereAdded) {
    for (const char* name : {"b", "c", "a", "b"})
        Add(name);
    std::string names;
    for (const Record* record : list)
        names += record->GetName().QRL_ANSI();
    EXPECT_EQ(names, "bcab");
    EXPECT_EQ(list[2]->GetName(), AString("a"));
    EXPECT_FALSE(list.IsEmpty());
    EXPECT_EQ(list.GetSize(), 4U);
}

TEST_F(RecordList_TTest, FindsANameWhateverItsCase) {
    Record* record = Add("Conn-7a");
    EXPECT_EQ(list.Find("Conn-7a"), record);
    EXPECT_EQ(list.Find("CONN-7A"), record);
    EXPECT_EQ(list.Find("conn-7a"), record);
    EXPECT_EQ(list.Find("conn-7"), nullptr);
    EXPECT_EQ(list.Find("conn-7a "), nullptr);
}

TEST_F(RecordList_TTest, FoldsTheLettersAToZOnly) {
    Record* umlaut = Add("\xC3\x84");
    EXPECT_EQ(list.Find("\xC3\x84"), umlaut);
    EXPECT_EQ(list.Find("\xC3\xA4"), nullptr);
    // '@' and '`', '[' and '{' are as far from each other as 'A' and 'a'.
    Add("@[");
    EXPECT_EQ(list.Find("`{"), nullptr);
}

TEST_F(RecordList_TTest, TheFirstOfNamesThatDifferByCaseAnswersForAll) {
    Record* first = Add("r1");
    Add("R1");
    Add("r1");
    for (const char* name : {"r1", "R1"})
        EXPECT_EQ(list.Find(name), first) << name;
    EXPECT_EQ(list.GetSize(), 3U);
}

TEST_F(RecordList_TTest, AnEmptyNameIsANameLikeAnyOther) {
    Record* nameless = Add("");
    EXPECT_EQ(list.Find(""), nameless);
}

TEST_F(RecordList_TTest, FindGivesWhatAWalkFromTheFrontGives) {
    const char* const names[] = {"a", "B", "A", "b", "aB", "ab", "", "Ab", "c"};
    for (const char* name : names)
        Add(name);
    for (const char* name : {"a", "A", "b", "AB", "", "C", "d"}) {
        const Record* first = nullptr;
        for (const Record* record : list)
            if (first == nullptr && record->GetName().CompareNoCase(name) == 0)
                first = record;
        EXPECT_EQ(list.Find(name), first) << name;
    }
}

TEST_F(RecordList_TTest, RecordsStayInPlaceWhileTheListGrows) {
    Record* first = Add("first");
    for (int i = 0; i < 10000; ++i)
        Add("more");
    EXPECT_EQ(list[0], first);
    EXPECT_EQ(list.Find("FIRST"), first);
    EXPECT_EQ(first->GetName(), AString("first"));
}

TEST_F(RecordList_TTest, CopyToReplacesWhatWasThere) {
    Record* a = Add("a");
    Record* b = Add("b");
    std::vector<Record*> records = {nullptr, a, b, a};
    EXPECT_EQ(list.CopyTo(records), 2);
    EXPECT_EQ(records, (std::vector<Record*>{a, b}));
    EXPECT_EQ(RecordList_T<Record>().CopyTo(records), 0);
    EXPECT_TRUE(records.empty());
}

TEST_F(RecordList_TTest, AddGivesTheClassThatWasMade) {
    EXPECT_TRUE(list.Add(std::make_unique<SpecialRecord>("special", alive))->IsSpecial());
    EXPECT_EQ(list.GetSize(), 1U);
}

TEST_F(RecordList_TTest, RecordsGoWithTheList) {
    {
        RecordList_T<Record> inner;
        inner.Add(std::make_unique<Record>("a", alive));
        inner.Add(std::make_unique<SpecialRecord>("A", alive));
        EXPECT_EQ(alive, 2);
    }
    EXPECT_EQ(alive, 0);
}

} // namespace
