#include "circuit/numbers.h"

#include "platform/runtime_error.h"

#include <gtest/gtest.h>
#include <locale>
#include <optional>

namespace schemlet {

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

TEST(Numbers, AreReadFromWholeTextsOrFromTheirBeginnings)
{
    const std::pair<std::string, double> whole[] = {
        {"10", 10}, {" 0.5 ", 0.5}, {"+3", 3},       {"-2.5", -2.5},      {".5", 0.5},
        {"5.", 5},  {"1e3", 1000},  {"1E-3", 0.001}, {"4.7E-06", 4.7e-6}, {"1.e+2", 100},
        {"007", 7}, {"0.0", 0},     {"1e-999", 0},   {"\t1", 1},          {"\n1\r\n", 1},
    };
    const std::pair<std::string, double> more[] = {
        {"", 0},         {" ", 0},       {"abc", 0},      {"1,5", 1},         {"5 ohm", 5},   {"nan", 0}, {"inf", 0},
        {"infinity", 0}, {"0x10", 0},    {"1e", 1},       {"1e+", 1},         {"e5", 0},      {".", 0},   {"-", 0},
        {"+-1", 0},      {"1.2.3", 1.2}, {"1 2", 1},      {"--1", 0},         {"1e5.5", 1e5}, {"１", 0},  {"1_000", 1},
        {"1'000", 1},    {" 12V", 12},   {"\r\n12V", 12}, {"-2.5e3x", -2500}, {".5.5", 0.5},
    };
    for (const auto& [text, number] : whole) {
        EXPECT_EQ(toNumber(text), number) << text;
        EXPECT_EQ(leadingNumber(text), number) << text;
    }
    for (const auto& [text, number] : more) {
        EXPECT_EQ(faultOf(text), Fault::typeMismatch) << text;
        EXPECT_EQ(leadingNumber(text), number) << text;
    }
    EXPECT_EQ(toNumber("0." + std::string(1'000'000, '0')), 0);
    for (const std::string& tooLarge : {std::string("1e999"), std::string("-1e999"), std::string(1'000'000, '9')}) {
        EXPECT_EQ(faultOf(tooLarge), Fault::overflow);
        EXPECT_EQ(faultOf(tooLarge + "x"), Fault::typeMismatch);
        EXPECT_THROW((void)leadingNumber(tooLarge + "V"), RuntimeError);
    }
}

TEST(ToText, IsAsShortAsFifteenDigitsAllow)
{
    const std::pair<double, const char*> numbers[] = {{0, "0"},
                                                      {-0.0, "0"},
                                                      {-4, "-4"},
                                                      {0.1 + 0.2, "0.3"},
                                                      {0.0001, "0.0001"},
                                                      {0.00001, "1E-05"},
                                                      {1e15, "1E+15"},
                                                      {-1.5e300, "-1.5E+300"},
                                                      {1e14, "100000000000000"},
                                                      {1.0 / 3, "0.333333333333333"},
                                                      {-1.23456789012345e-308, "-1.23456789012345E-308"}};
    for (const auto& [number, text] : numbers) {
        EXPECT_EQ(toText(number), text);
    }
}

TEST(Numbers, DoNotDependOnTheLocale)
{
    struct Comma : std::numpunct<char> {
        [[nodiscard]] char do_decimal_point() const override { return ','; }
        [[nodiscard]] char do_thousands_sep() const override { return '.'; }
        [[nodiscard]] std::string do_grouping() const override { return "\3"; }
    };
    const std::locale before = std::locale::global(std::locale(std::locale::classic(), new Comma));
    EXPECT_EQ(toNumber("1234.5"), 1234.5);
    EXPECT_EQ(faultOf("1234,5"), Fault::typeMismatch);
    EXPECT_EQ(leadingNumber("1234.5V"), 1234.5);
    EXPECT_EQ(toText(1234.5), "1234.5");
    std::locale::global(before);
}

} // namespace schemlet
