#include "circuit/numbers.h"

#include "platform/runtime_error.h"

#include <gtest/gtest.h>
#include <locale>
#include <optional>

namespace {

std::optional<Fault> faultOf(std::string_view text)
{
    try {
        (void)toNumber(text);
        return {};
    } catch (const RuntimeError& error) {
        return error.fault;
    }
}

} // namespace

TEST(ToNumber, TakesNumbersWithAPointAndNothingElse)
{
    const std::pair<const char*, double> numbers[] = {
        {"10", 10},      {" 0.5 ", 0.5},      {"+3", 3},      {"-2.5", -2.5}, {".5", 0.5}, {"5.", 5},     {"1e3", 1000},
        {"1E-3", 0.001}, {"4.7E-06", 4.7e-6}, {"1.e+2", 100}, {"007", 7},     {"0.0", 0},  {"1e-999", 0}, {"\t1", 1},
    };
    for (const auto& [text, number] : numbers) {
        EXPECT_EQ(toNumber(text), number) << text;
    }
    for (const char* const text :
         {"",   " ", "abc", "1,5", "5 ohm", "nan", "inf", "infinity", "0x10", "1e",    "1e+",
          "e5", ".", "-",   "+-1", "1.2.3", "1 2", "--1", "1e5.5",    "１",   "1_000", "1'000"}) {
        EXPECT_EQ(faultOf(text), Fault::typeMismatch) << text;
    }
    EXPECT_EQ(faultOf("1e999"), Fault::overflow);
    EXPECT_EQ(faultOf("-1e999"), Fault::overflow);
    EXPECT_EQ(faultOf(std::string(1'000'000, '9')), Fault::overflow);
    EXPECT_EQ(toNumber("0." + std::string(1'000'000, '0')), 0);
    EXPECT_EQ(faultOf(std::string(1'000'000, '1') + "x"), Fault::typeMismatch);
}

TEST(Numbers, DoNotCareForTheLocale)
{
    struct Comma : std::numpunct<char> {
        [[nodiscard]] char do_decimal_point() const override { return ','; }
        [[nodiscard]] char do_thousands_sep() const override { return '.'; }
        [[nodiscard]] std::string do_grouping() const override { return "\3"; }
    };
    const std::locale before = std::locale::global(std::locale(std::locale::classic(), new Comma));
    EXPECT_EQ(toNumber("1234.5"), 1234.5);
    EXPECT_EQ(faultOf("1234,5"), Fault::typeMismatch);
    std::locale::global(before);
}
