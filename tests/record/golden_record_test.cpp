// golden_record.txt says what the program draws and decides. No other test repeats that. After an intended change,
// `cmake --build --preset dev --target write_golden_record` writes the file again, and its diff shows the change.

#include "tests/record/record.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>

namespace schemlet {

TEST(GoldenRecord, EverythingHappensAsRecorded)
{
    Record record;
    recordClicks(record);
    recordScenarios(record);
    recordDrawing(record);
    recordInk(record);
    recordChanges(record);
    std::string now;
    for (const auto& [title, body] : record) {
        now += "## " + title + "\n" + body;
    }
    if (std::getenv("SCHEMLET_WRITE_GOLDEN_RECORD") != nullptr) {
        std::ofstream file(SCHEMLET_GOLDEN_RECORD);
        ASSERT_TRUE(file << now << std::flush);
    } else {
        FILE* const diff = popen("diff -u -F '^## ' '" SCHEMLET_GOLDEN_RECORD "' -", "w");
        std::fputs(now.c_str(), diff);
        EXPECT_EQ(pclose(diff), 0) << "what is recorded (-) and what happens now (+) differ";
    }
}

} // namespace schemlet
