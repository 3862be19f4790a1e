// The text file beside this one says what the program draws and decides; no other test repeats that. After a change
// that is meant, `cmake --build --preset dev --target write_golden_record` writes it anew: its diff is the change.

#include "tests/record/record.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>

namespace schemlet {

namespace {

constexpr const char* path = SCHEMLET_GOLDEN_RECORD;

void write(const Record& record)
{
    std::ofstream file(path);
    for (const auto& [title, body] : record) {
        file << "## " << title << "\n" << body;
    }
    ASSERT_TRUE(file.flush());
}

Record read()
{
    Record record;
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("## ")) {
            record.push_back({line.substr(3), ""});
        } else {
            record.back().body += line + "\n";
        }
    }
    return record;
}

} // namespace

TEST(GoldenRecord, EverythingHappensAsRecorded)
{
    Record now;
    recordClicks(now);
    recordScenarios(now);
    recordDrawing(now);
    recordInk(now);
    if (std::getenv("SCHEMLET_WRITE_GOLDEN_RECORD") != nullptr) {
        return write(now);
    }
    const Record recorded = read();
    for (const auto& [title, body] : now) {
        const auto known = std::ranges::find(recorded, title, &Section::title);
        EXPECT_EQ(known == recorded.end() ? "" : known->body, body) << "in section " << title;
    }
    EXPECT_EQ(now.size(), recorded.size());
}

} // namespace schemlet
