#include "platform/files/picture_check.h"

#include <climits>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

namespace schemlet {

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
    return {list.begin(), list.end()};
}

std::string filler(std::int64_t count)
{
    std::string out;
    out.resize(static_cast<std::size_t>(count), '\x55');
    return out;
}

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
    std::string out = "BM" + little(0, 8) + little(14 + what.header + palette + masks, 4) + little(what.header, 4);
    if (what.header == 12) {
        out += little(what.width, 2) + little(what.height, 2) + little(1, 2) + little(what.bits, 2);
    } else {
        out += little(what.width, 4) + little(what.height, 4) + little(1, 2) + little(what.bits, 2) +
               little(what.compression, 4) + little(what.dataBytes, 4) + little(0, 8) + little(what.colors, 8) +
               filler(what.header - 40);
    }
    return out + filler(palette + masks) + pixels;
}

std::string png(const std::string& more = {})
{
    const auto chunk = [](const std::string& name, std::int64_t length) {
        return big(length, 4) + name + filler(length + 4);
    };
    return "\x89PNG\r\n\x1a\n" + chunk("IHDR", 13) + more + chunk("IDAT", 9) + chunk("IDAT", 0) + chunk("IEND", 0);
}

/// With all that may mislead: an end within a segment, filled-up markers, restarts and stuffed bytes.
std::string jpeg()
{
    const auto segment = [](int code, const std::string& data) {
        return bytes({0xFF, code}) + big(static_cast<int>(data.size()) + 2, 2) + data;
    };
    const std::string end = bytes({0xFF, 0xD9});
    std::string out = bytes({0xFF, 0xD8}) + segment(0xE1, bytes({0xFF, 0xD8}) + filler(5) + end) + bytes({0xFF, 0xFF}) +
                      segment(0xC2, filler(15)) + segment(0xFE, "");
    for (int scan = 0; scan < 3; ++scan) {
        out += segment(0xDA, filler(6)) + filler(4) + bytes({0xFF, 0x00, 0x12, 0xFF, 0x01, 0xFF, 0xD0, 0xFF, 0xD7}) +
               filler(3);
    }
    return out + end;
}

std::string gif(int firstBlock = '!')
{
    return "GIF89a" + filler(4) + bytes({0x81, 0x77, 0}) + filler(12) + bytes({firstBlock, 0xFE, 3, 9, 9, 9, 0}) + "," +
           filler(8) + bytes({0x01, 2, 2, 0x4C, 1, 0});
}

/// Each needs its last byte.
std::vector<std::string> wholePictures()
{
    std::vector<std::string> out{png(), jpeg(), gif(), "#define a_width 9\nstatic char a[] = {0, 0}"};
    for (const auto& [bits, rowBytes] : {std::pair{1, 4}, {4, 8}, {8, 12}, {16, 20}, {24, 28}, {32, 36}}) {
        out.push_back(bmp({9, 7, bits}, filler(rowBytes * 7LL)));
        out.push_back(bmp({9, -7, bits, 0, 0, 0, 124}, filler(rowBytes * 7LL)));
        out.push_back(bmp({9, 7, bits, 0, 0, 0, 12}, filler(rowBytes * 7LL)));
    }
    out.push_back(bmp({9, 7, 8, 0, 0, 3}, filler(84)));
    out.push_back(bmp({9, 7, 16, 3}, filler(140)));
    out.push_back(bmp({1, 1, 32, 3}, filler(4)));
    const std::string absolute = bytes({0, 5, 9, 9, 9, 9, 0, 1, 0, 6, 9, 9, 9, 9, 0, 1, 0, 2, 0, 1});
    out.push_back(bmp({9, 7, 8, 1}, absolute + bytes({0, 0, 0, 1})));
    out.push_back(bmp({9, 7, 4, 2}, bytes({9, 1, 0, 2, 0, 2, 0, 0, 0, 4, 9, 9, 0, 5, 9, 9, 0, 1, 0, 1})));
    out.push_back(bmp({9, 7, 8, 1}, absolute + bytes({0, 2, 9, 5, 0, 0}))); // no mark, but its rows are done
    for (std::size_t i = out.size(); i-- > 0;) {
        if (out[i].starts_with("BM")) { // whose header may not say where the pixels are
            out.push_back(std::string(out[i]).replace(10, 4, little(0, 4)));
        }
    }
    return out;
}

} // namespace

TEST(PictureCheck, MissesEveryByteThatIsMissingAndCopesWithAnyByteAnywhere)
{
    for (const std::string& whole : wholePictures()) {
        SCOPED_TRACE(testing::PrintToString(whole.substr(0, 60)));
        for (const std::string& behind : {std::string(), filler(9), std::string("BM")}) {
            EXPECT_EQ(picture::check(whole + behind), State::whole);
        }
        for (std::size_t length = 0; length < whole.size(); ++length) {
            const State state = picture::check(std::string_view(whole).substr(0, length));
            EXPECT_EQ(state, length < 8 && state == State::unknownFormat ? state : State::cutShort) << length;
            for (const char byte : {'\x00', '\x01', '\x7F', '\x80', '\xFF'}) {
                std::string damaged = whole;
                damaged[length] = byte;
                static_cast<void>(picture::check(damaged)); // any state will do
            }
        }
    }
}

TEST(PictureCheck, BelievesNoHeader)
{
    const std::string some = filler(99);
    const std::string runs = bytes({9, 1, 0, 0, 9, 2}); // without an end: the header has their length
    const std::pair<std::string, State> cases[] = {
        {bmp({9, 7, 8, 1, 6}, runs), State::whole},
        {bmp({9, 7, 8, 1, 7}, runs), State::cutShort},
        {bmp({65535, 65535, 24}, some), State::cutShort},
        {bmp({INT_MAX, INT_MAX, 32}, some), State::cutShort},
        {bmp({INT_MAX, INT_MIN, 8, 1}, some), State::cutShort},
        {bmp({5, INT_MIN, 24}, some), State::cutShort},
        {bmp({-5, 5, 24}, some), State::unreadable},
        {bmp({0, 5, 24}, some), State::unreadable},
        {bmp({5, 0, 24}, some), State::unreadable},
        {bmp({5, 5, 23}, some), State::unreadable},
        {bmp({5, 5, 24, 4}, some), State::unreadable},
        {bmp({5, 5, 4, 1}, some), State::unreadable},
        {bmp({5, 5, 8, 2}, some), State::unreadable},
        {bmp({5, 5, 24, 3}, some), State::unreadable},
        {bmp({5, 5, 8, 0, 0, 257}, some), State::unreadable},
        {bmp({5, 5, 24, 0, 0, 0, 125}, some), State::unreadable},
        {"BM" + filler(12) + little(39, 4) + filler(50000), State::unreadable},
        {png(big(0xFFFFFFFF, 4) + "IDAT"), State::unreadable},
        {png(big(INT_MAX, 4) + "IDAT"), State::cutShort},
        {bytes({0xFF, 0xD8, 0xFF, 0xE0, 0, 1}) + some, State::unreadable},
        {gif(';'), State::unreadable},
        {"A circuit of mine", State::unknownFormat},
    };
    for (const auto& [file, state] : cases) {
        EXPECT_EQ(picture::check(file), state) << testing::PrintToString(file.substr(0, 60));
    }
}

} // namespace schemlet
