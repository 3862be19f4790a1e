// The text file beside this one says what the program draws; no other test repeats strokes. After a change that is
// meant, `cmake --build --preset dev --target write_golden_record` writes it anew: its diff is the change.

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

std::string threeLines(const std::string& text, std::size_t from)
{
    std::size_t end = from;
    for (int i = 0; i < 3 && end < text.size(); ++i) {
        end = text.find('\n', end) + 1;
    }
    return text.substr(from, end - from);
}

/// The first lines that are not the same.
std::string difference(const std::string& recorded, const std::string& now)
{
    const auto same = static_cast<std::size_t>(std::ranges::mismatch(recorded, now).in1 - recorded.begin());
    const std::size_t line = recorded.substr(0, same).rfind('\n') + 1; // 0 if there is none before
    return "recorded:\n" + threeLines(recorded, line) + "now:\n" + threeLines(now, line);
}

} // namespace

TEST(GoldenRecord, EverythingIsDrawnAsRecorded)
{
    Record now;
    recordClicks(now);
    recordDrawing(now);
    recordInk(now);
    if (std::getenv("SCHEMLET_WRITE_GOLDEN_RECORD") != nullptr) {
        return write(now);
    }
    const Record recorded = read();
    for (const auto& [title, body] : now) {
        const auto known = std::ranges::find(recorded, title, &Section::title);
        if (known == recorded.end()) {
            ADD_FAILURE() << "## " << title << "\nis not recorded, but drawn now:\n" << threeLines(body, 0);
        } else if (known->body != body) {
            ADD_FAILURE() << "## " << title << "\n" << difference(known->body, body);
        }
    }
    EXPECT_EQ(now.size(), recorded.size());
}

} // namespace schemlet
