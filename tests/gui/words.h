#pragma once

#include <QImage>
#include <QRect>
#include <QString>

/// Where dark words in the program's font first stand on something light; invalid if they are nowhere.
[[nodiscard]] QRect findWords(const QImage& picture, const QString& words);

/// What is on a part of the screen, or on all of it.
[[nodiscard]] QImage screen(const QRect& part = {0, 0, -1, -1});

/// The same on the whole screen.
[[nodiscard]] QRect findWords(const QString& words);
[[nodiscard]] inline bool seeWords(const QString& words)
{
    return findWords(words).isValid();
}
void waitForWords(const QString& words);
