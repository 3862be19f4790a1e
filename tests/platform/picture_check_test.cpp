#include "platform/files/picture_check.h"

#include <climits>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

namespace schemlet {

namespace {

using namespace std::string_literals;
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

std::string filler(std::int64_t count)
{
    return std::string(static_cast<std::size_t>(count), 'U');
}

struct Bmp {
    std::int64_t width = 0;
    std::int64_t height = 0;
    int bits = 0;
    int compression = 0;
    int dataBytes = 0;
    int colors = 0;  ///< the header's count
    int header = 40; ///< bytes; 12 is the old kind
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
    return "\x89PNG\r\n\x1a\n" + big(13, 4) + "IHDR" + filler(17) + more + big(9, 4) + "IDAT" + filler(13) + big(0, 4) +
           "IDAT" + filler(4) + big(0, 4) + "IEND" + filler(4);
}

/// It has everything that can mislead: an end mark inside a segment, padded markers, restarts and stuffed bytes.
std::string jpeg()
{
    const std::string scan = "\xFF\xDA" + big(8, 2) + filler(10) + "\xFF\x00\x12\xFF\x01\xFF\xD0\xFF\xD7UUU"s;
    return "\xFF\xD8\xFF\xE1" + big(11, 2) + "\xFF\xD8UUUUU\xFF\xD9\xFF\xFF\xFF\xC2" + big(17, 2) + filler(15) +
           "\xFF\xFE" + big(2, 2) + scan + scan + scan + "\xFF\xD9";
}

std::string gif(char firstBlock = '!')
{
    return "GIF89a" + filler(4) + "\x81w\0"s + filler(12) + firstBlock + "\xFE\3xyz\0,"s + filler(8) + "\x80" +
           filler(6) + "\2\2xy\1z\0"s;
}

/// Each of them is incomplete without its last byte.
std::vector<std::string> wholePictures()
{
    std::string gifWithoutTable = gif();
    gifWithoutTable.erase(13, 12)[10] = '\1';
    std::vector<std::string> out{png(), jpeg(), gif(), gifWithoutTable, "#define a_width 9\nstatic char a[] = {0, 0}"};
    for (const auto& [bits, bytes] : {std::pair{1, 28}, {4, 56}, {8, 84}, {16, 140}, {24, 196}, {32, 252}}) {
        for (const Bmp& header : {Bmp{9, 7, bits}, {9, -7, bits, 0, 0, 0, 124}, {9, 7, bits, 0, 0, 0, 12}}) {
            out.push_back(bmp(header, filler(bytes)));
        }
    }
    out.push_back(bmp({9, 7, 8, 0, 0, 3}, filler(84)));
    out.push_back(bmp({9, 7, 16, 3}, filler(140)));
    out.push_back(bmp({1, 1, 32, 3}, filler(4)));
    const std::string absolute = "\0\5aaaa\0\1\0\6aaaa\0\1\0\2\0\1"s;
    out.push_back(bmp({9, 7, 8, 1}, absolute + "\0\0\0\1"s));
    out.push_back(bmp({9, 7, 4, 2}, "\x9\1\0\2\0\2\0\0\0\4aa\0\5aa\0\1\0\1"s));
    out.push_back(bmp({9, 7, 8, 1}, absolute + "\0\2\x9\5\0\0"s)); // without an end mark, but with all rows
    for (std::size_t i = out.size(); i-- > 0;) {
        if (out[i].starts_with("BM")) { // the header need not say where the pixels are
            out.push_back(std::string(out[i]).replace(10, 4, little(0, 4)));
        }
    }
    return out;
}

} // namespace

TEST(PictureCheck, NoticesEveryMissingByteAndSurvivesAnyDamage)
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
                static_cast<void>(picture::check(damaged)); // may return any state
            }
        }
    }
}

TEST(PictureCheck, DoesNotTrustHeaders)
{
    const std::string some = filler(99);
    const std::string runs = "\x9\1\0\0\x9\2"s; // without an end mark: the header has their length
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
        {"\xFF\xD8\xFF\xE0\0\1"s + some, State::unreadable},
        {gif(';'), State::unreadable},
        {"A circuit of mine", State::unknownFormat},
    };
    for (const auto& [file, state] : cases) {
        EXPECT_EQ(picture::check(file), state) << testing::PrintToString(file.substr(0, 60));
    }
}

} // namespace schemlet
