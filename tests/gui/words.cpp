#include "tests/gui/words.h"

#include "tests/gui/desk.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <QPixmap>
#include <QScreen>
#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace {

constexpr int margin = 4; // pixels around a letter that may be painted

/// How light a picture's pixels are, by rows.
struct Print {
    explicit Print(const QImage& picture) : width(picture.width()), height(picture.height())
    {
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                light.push_back(qGray(picture.pixel(x, y)));
            }
        }
    }
    [[nodiscard]] int at(int x, int y) const
    {
        return light[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x)];
    }

    int width;
    int height;
    std::vector<int> light;
};

/// What a letter may look like: it may begin at any quarter of a pixel.
struct Letter {
    struct Look {
        Print print;
        QPoint place; ///< from the words' upper left corner, to within a pixel
    };
    std::vector<Look> looks;
};

/// As the font joins letters.
QString joined(QString words)
{
    return words.replace("fi", "\uFB01").replace("ff", "\uFB00");
}

QRect inkOf(const Print& print)
{
    QRect ink;
    for (int y = 0; y < print.height; ++y) {
        for (int x = 0; x < print.width; ++x) {
            ink |= print.at(x, y) < 128 ? QRect(x, y, 1, 1) : QRect();
        }
    }
    return ink;
}

std::vector<Letter> lettersOf(const QString& words)
{
    const QFontMetricsF metrics(QGuiApplication::font());
    std::vector<Letter> letters;
    for (qsizetype i = 0; i < words.size(); ++i) {
        const QString text = words.mid(i, 1);
        const double begin = metrics.horizontalAdvance(words.left(i + 1)) - metrics.horizontalAdvance(text);
        Letter letter;
        for (const double quarter : {0.0, 0.25, 0.5, 0.75}) {
            QImage picture(32, 32, QImage::Format_RGB32);
            picture.fill(Qt::white);
            QPainter(&picture).drawText(QPointF(margin + quarter, margin + metrics.ascent()), text);
            if (const QRect ink = inkOf(Print(picture)); !ink.isEmpty()) {
                letter.looks.push_back({Print(picture.copy(ink)), ink.topLeft() + QPoint(static_cast<int>(begin), 0)});
            }
        }
        if (!letter.looks.empty()) {
            letters.push_back(std::move(letter));
        }
    }
    return letters;
}

bool looksLike(const Print& letter, const Print& picture, QPoint at)
{
    const auto [x, y] = std::pair(at.x(), at.y());
    if (x < 0 || y < 0 || x + letter.width > picture.width || y + letter.height > picture.height) {
        return false;
    }
    constexpr int tolerance = 48; // the ground may be grey
    int foreign = 6;              // dark pixels, of a letter that reaches over this one
    for (int row = 0; row < letter.height; ++row) {
        for (int column = 0; column < letter.width; ++column) {
            const int lighter = picture.at(x + column, y + row) - letter.at(column, row);
            if (lighter > tolerance || (lighter < -tolerance && --foreign < 0)) {
                return false;
            }
        }
    }
    return true;
}

bool standsAt(const Letter& letter, const Print& picture, QPoint from)
{
    return std::ranges::any_of(letter.looks, [&](const Letter::Look& look) {
        return std::ranges::any_of(std::array{0, 1, -1}, [&](int aside) {
            return looksLike(look.print, picture, from + look.place + QPoint(aside, 0));
        });
    });
}

} // namespace

QRect findWords(const QImage& picture, const QString& words)
{
    const std::vector<Letter> letters = lettersOf(joined(words.trimmed()));
    const Print whole(picture);
    for (int y = -margin; y < whole.height; ++y) {
        for (int x = -margin; x < whole.width; ++x) {
            const QPoint from(x, y);
            if (std::ranges::all_of(letters, [&](const Letter& l) { return standsAt(l, whole, from); })) {
                const Letter::Look& last = letters.back().looks.front();
                return {from + letters.front().looks.front().place,
                        from + last.place + QPoint(last.print.width, last.print.height)};
            }
        }
    }
    return {};
}

QRect findWords(const QString& words)
{
    return findWords(screen(), words);
}

QImage screen(const QRect& part)
{
    return QGuiApplication::primaryScreen()->grabWindow(0, part.x(), part.y(), part.width(), part.height()).toImage();
}

void waitForWords(const QString& words)
{
    waitUntil(qPrintable(words), [&] { return seeWords(words); });
}
