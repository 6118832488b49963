#include "platform/screen.h"

#include <gtest/gtest.h>

#include "support/outside_double.h"

namespace gullymark::platform {
namespace {

const std::vector<std::string> entries = {"Curb Inlet", "Grate Inlet"};

TEST(CheckListValue, AnEntryAndTheBeginningOfAnEntryPassAndStayAsTyped) {
    const testing_support::OutsideDouble outside_double;
    for (const std::string typed : {"Curb Inlet", "Grate Inlet", "Gr", "C", ""}) {
        std::string text = typed;
        EXPECT_FALSE(CheckListValue(text, entries)) << typed;
        EXPECT_EQ(text, typed);
    }
    EXPECT_TRUE(outside_double.boxes.empty());
}

TEST(CheckListValue, AnyOtherTextIsRefusedAndBecomesTheFirstEntry) {
    for (const std::string typed : {"curb Inlet", "Inlet", "Curb Inlets", " "}) {
        const testing_support::OutsideDouble outside_double;
        std::string text = typed;
        EXPECT_TRUE(CheckListValue(text, entries)) << typed;
        EXPECT_EQ(text, "Curb Inlet");
        EXPECT_EQ(outside_double.boxes,
                  (std::vector<Box>{{BoxKind::plain,
                                     "Value not present in the list... Please enter a valid value..",
                                     "GullymarkAL"}}));
    }
}

TEST(CheckListValue, AListWithoutEntriesLetsEveryTextPass) {
    const testing_support::OutsideDouble outside_double;
    std::string text = "anything";
    EXPECT_FALSE(CheckListValue(text, {}));
    EXPECT_EQ(text, "anything");
    EXPECT_TRUE(outside_double.boxes.empty());
}

}  // namespace
}  // namespace gullymark::platform
