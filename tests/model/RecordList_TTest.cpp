#include "model/RecordList_T.h"
#include "model/Component.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

std::unique_ptr<Component> NewComponent(const AString& name) {
    return std::make_unique<Component>(name, nullptr, geom::Point(), 0.0, false);
}

} // namespace

TEST(RecordList_TTest, FindIgnoresCaseAndGivesTheFirst) {
    RecordList_T<Component> list;
    const Component* first = list.Add(NewComponent("U1"));
    list.Add(NewComponent("u1"));
    const Component* other = list.Add(NewComponent(""));
    EXPECT_EQ(list.Find("u1"), first);
    EXPECT_EQ(list.Find("U1"), first);
    EXPECT_EQ(list.Find(""), other);
    EXPECT_EQ(list.Find("U2"), nullptr);
}

TEST(RecordList_TTest, CopyToKeepsTheOrder) {
    RecordList_T<Component> list;
    Component* first = list.Add(NewComponent("U2"));
    Component* second = list.Add(NewComponent("U1"));
    std::vector<Component*> out(3);
    EXPECT_EQ(list.CopyTo(out), 2);
    EXPECT_THAT(out, ElementsAre(first, second));
}
