#include "platform/picture_check.h"

#include <climits>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

namespace {

using picture::State;

std::string little(std::int64_t number, int bytes)
{
    std::string out;
    for (int i = 0; i < bytes; ++i) {
        out += static_cast<char>(number >> 8 * i & 0xFF);
    }
    return out;
}

std::string big(std::int64_t number, int bytes)
{
    const std::string reversed = little(number, bytes);
    return {reversed.rbegin(), reversed.rend()};
}

std::string bytes(std::initializer_list<int> list)
{
    std::string out;
    for (const int byte : list) {
        out += static_cast<char>(byte);
    }
    return out;
}

std::string filler(std::int64_t count)
{
    std::string out;
    out.resize(static_cast<std::size_t>(count), '\x55');
    return out;
}

/// What is worth varying of a BMP.
struct Bmp {
    std::int64_t width = 0;
    std::int64_t height = 0;
    int bits = 0;
    int compression = 0;
    int dataBytes = 0;
    int colors = 0;  ///< as the header counts them
    int header = 40; ///< 12 is the old one
};

std::string bmp(const Bmp& what, const std::string& pixels)
{
    const int entry = what.header == 12 ? 3 : 4;
    const int masks = what.header == 40 && what.compression == 3 ? 12 : 0;
    const int palette = what.bits > 8 ? 0 : entry * (what.colors != 0 ? what.colors : 1 << what.bits);
    const int extra = palette > 1024 ? 0 : palette + masks;
    std::string out = "BM" + little(0, 8) + little(14 + what.header + extra, 4) + little(what.header, 4);
    if (what.header == 12) {
        out += little(what.width, 2) + little(what.height, 2) + little(1, 2) + little(what.bits, 2);
    } else {
        out += little(what.width, 4) + little(what.height, 4) + little(1, 2) + little(what.bits, 2) +
               little(what.compression, 4) + little(what.dataBytes, 4) + little(0, 8) + little(what.colors, 8) +
               filler(what.header - 40);
    }
    return out + filler(extra) + pixels;
}

std::string chunk(const std::string& name, const std::string& data)
{
    return big(static_cast<int>(data.size()), 4) + name + data + filler(4);
}

std::string png(std::int64_t width, std::int64_t height, const std::string& more = {}, int depth = 8)
{
    return "\x89PNG\r\n\x1a\n" + chunk("IHDR", big(width, 4) + big(height, 4) + bytes({depth, 2, 0, 0, 0})) + more +
           chunk("IDAT", filler(9)) + chunk("IDAT", "") + chunk("IEND", "");
}

std::string segment(int code, const std::string& data)
{
    return bytes({0xFF, code}) + big(static_cast<int>(data.size()) + 2, 2) + data;
}

/// With all that may mislead: an end within a segment, filled-up markers, restarts and stuffed bytes.
std::string jpeg(int frame, int components, int scans)
{
    const std::string end = bytes({0xFF, 0xD9});
    std::string out =
        bytes({0xFF, 0xD8}) + segment(0xE1, bytes({0xFF, 0xD8}) + filler(5) + end) + bytes({0xFF, 0xFF, 0xFF}) +
        segment(0xDB, filler(3)).substr(1) +
        segment(frame, bytes({8}) + big(7, 2) + big(9, 2) + bytes({components}) + filler(components * 3LL));
    for (int i = 0; i < scans; ++i) {
        out += segment(0xC4, filler(4)) + segment(0xDA, bytes({frame == 0xC0 ? components : 1}) + filler(5)) +
               filler(4) + bytes({0xFF, 0x00, 0x12, 0xFF, 0xD3}) + filler(3);
    }
    return out + end;
}

std::string gif()
{
    return "GIF89a" + little(9, 2) + little(7, 2) + bytes({0x80, 0, 0}) + filler(6) + bytes({'!', 0xFE, 2, 1, 1, 0}) +
           "," + little(0, 4) + little(9, 2) + little(7, 2) + bytes({0x81}) + filler(12) + bytes({2, 2, 0x4C, 1, 0});
}

/// Each picture is complete, 9 pixels wide and 7 high, and needs its last byte.
std::vector<std::string> goodPictures()
{
    std::vector<std::string> out{png(9, 7), png(9, 7, chunk("tEXt", filler(20)), 16), jpeg(0xC0, 3, 1),
                                 jpeg(0xC2, 3, 10), gif()};
    for (const auto& [bits, rowBytes] : {std::pair{1, 4}, {4, 8}, {8, 12}, {16, 20}, {24, 28}, {32, 36}}) {
        out.push_back(bmp({9, 7, bits}, filler(rowBytes * 7LL)));
        out.push_back(bmp({9, -7, bits, 0, 0, 0, 124}, filler(rowBytes * 7LL)));
        out.push_back(bmp({9, 7, bits, 0, 0, 0, 12}, filler(rowBytes * 7LL)));
    }
    out.push_back(bmp({9, 7, 8, 0, 0, 3}, filler(84)));
    out.push_back(bmp({9, 7, 32, 3}, filler(252)));
    const std::string absolute = bytes({0, 5}) + filler(6) + bytes({0, 2, 0, 1, 4, 0x11});
    out.push_back(bmp({9, 7, 8, 1}, absolute + bytes({0, 0, 0, 1})));
    out.push_back(bmp({9, 7, 4, 2}, bytes({9, 1, 0, 2, 0, 2, 0, 0, 0, 5, 1, 2, 3, 0, 0, 1})));
    out.push_back(bmp({9, 7, 8, 1}, absolute + bytes({0, 2, 9, 6}))); // no mark, but its rows are done
    return out;
}

struct Case {
    std::string file;
    State state;
    std::int64_t width = 0;
    std::int64_t height = 0;
};

void expectAll(const std::vector<Case>& cases)
{
    for (const Case& each : cases) {
        SCOPED_TRACE(testing::PrintToString(each.file.substr(0, 60)));
        const picture::Finding found = picture::check(each.file);
        EXPECT_EQ(found.state, each.state);
        EXPECT_EQ(found.width, each.width);
        EXPECT_EQ(found.height, each.height);
    }
}

} // namespace

TEST(PictureCheck, MissesEveryByteThatIsMissingAndCopesWithAnyByteAnywhere)
{
    for (const std::string& whole : goodPictures()) {
        SCOPED_TRACE(testing::PrintToString(whole.substr(0, 60)));
        for (const std::string& behind : {std::string(), filler(9), std::string("BM")}) {
            const picture::Finding found = picture::check(whole + behind);
            EXPECT_EQ(found.state, State::complete);
            EXPECT_EQ(found.width, 9);
            EXPECT_EQ(found.height, 7);
        }
        for (std::size_t length = 0; length < whole.size(); ++length) {
            const State state = picture::check(std::string_view(whole).substr(0, length)).state;
            EXPECT_EQ(state, length < 8 && state == State::unknownFormat ? state : State::cutShort) << length;
            for (const char byte : {'\x00', '\x01', '\x7F', '\x80', '\xFF'}) {
                std::string damaged = whole;
                damaged[length] = byte;
                EXPECT_LE(std::abs(picture::check(damaged).width), 0xFFFFFFFF); // any finding will do
            }
        }
    }
}

TEST(PictureCheck, SaysTheSizeThatABmpClaimsAndRefusesNonsense)
{
    constexpr std::int64_t least = INT_MIN;
    std::string uselessSteps;
    for (int i = 0; i < 99; ++i) {
        uselessSteps += bytes({0, 2, 0, 0});
    }
    const std::string runs = bytes({9, 1, 0, 0, 9, 2}); // without an end: the header has their length
    expectAll({
        {bmp({9, 7, 8, 1, 6}, runs), State::complete, 9, 7},
        {bmp({9, 7, 8, 1, 7}, runs), State::cutShort, 9, 7},
        {bmp({65535, 65535, 24}, filler(99)), State::cutShort, 65535, 65535},
        {bmp({INT_MAX, INT_MAX, 32}, filler(99)), State::unreadable, INT_MAX, INT_MAX},
        {bmp({INT_MAX, least, 8, 1}, filler(99)), State::cutShort, INT_MAX, -least},
        {bmp({5, least, 24}, filler(99)), State::cutShort, 5, -least},
        {bmp({-5, 5, 24}, filler(99)), State::unreadable, -5, 5},
        {bmp({0, 5, 24}, filler(99)), State::unreadable, 0, 5},
        {bmp({5, 0, 24}, filler(99)), State::unreadable, 5, 0},
        {bmp({5, 5, 23}, filler(99)), State::unreadable, 5, 5},
        {bmp({5, 5, 24, 5}, filler(99)), State::unreadable, 5, 5},
        {bmp({5, 5, 4, 1}, filler(99)), State::unreadable, 5, 5},
        {bmp({5, 5, 24, 3}, filler(99)), State::unreadable, 5, 5},
        {bmp({5, 5, 8, 0, 0, 257}, filler(99)), State::unreadable},
        {bmp({5, 5, 8, 1}, uselessSteps + bytes({0, 1})), State::unreadable, 5, 5},
        {"BM" + filler(12) + little(-1, 4) + filler(99), State::unreadable},
    });
}

TEST(PictureCheck, SaysTheSizeThatOthersClaimAndRefusesNonsense)
{
    std::string notes;
    for (int i = 0; i < 17; ++i) {
        notes += chunk("zTXt", filler(20));
    }
    const std::string xbm = "#define a_width 9\n#define a_height 1\nstatic char a[] = {0, 0";
    expectAll({
        {png(60000, 60000), State::complete, 60000, 60000},
        {png(0xFFFFFFFF, 0), State::complete, 0xFFFFFFFF, 0},
        {png(9, 7, big(0xFFFFFFFF, 4) + "IDAT"), State::unreadable, 9, 7},
        {png(9, 7, big(INT_MAX, 4) + "IDAT"), State::cutShort, 9, 7},
        {png(9, 7, png(9, 7).substr(8)), State::unreadable, 9, 7},
        {png(9, 7, notes), State::unreadable, 9, 7},
        {png(9, 7, chunk("tEXt", filler(9'000'000))), State::unreadable, 9, 7},
        {jpeg(0xC0, 3, 0), State::unreadable, 9, 7},
        {jpeg(0xC2, 3, 65), State::unreadable, 9, 7},
        {bytes({0xFF, 0xD8, 0xFF, 0xE0, 0, 1}) + filler(9), State::unreadable},
        {"GIF89a" + little(9, 2) + little(7, 2) + bytes({0, 0, 0}) + ";", State::unreadable, 9, 7},
        {xbm, State::cutShort},
        {xbm + "};", State::complete},
        {"A circuit of mine", State::unknownFormat},
        {"", State::unknownFormat},
    });
}

TEST(PictureCheck, KnowsWhichPicturesTakeMoreMemoryToDecode)
{
    for (const auto& [file, bytesPerPixel] : {std::pair{png(9, 7), 5},
                                              {png(9, 7, {}, 16), 12},
                                              {jpeg(0xC0, 3, 1), 5},
                                              {jpeg(0xC2, 3, 1), 10},
                                              {jpeg(0xC2, 1, 1), 5},
                                              {jpeg(0xC1, 3, 3), 10},
                                              {jpeg(0xC6, 4, 3), 12}}) {
        EXPECT_EQ(picture::check(file).bytesPerPixel, bytesPerPixel);
    }
}
