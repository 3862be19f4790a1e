// Drives the real program on a screen of its own with keys, mouse and new window sizes by chance:
//   drive_program PROGRAM SEED SECONDS MEGABYTES
// Fails where it crashes, ends with an error, does not end when told to, or grows by more than so many megabytes. It
// writes what and where chance says, so start it by tools/drive-program.

#include "tests/drive/chance.h"
#include "tests/gui/desk.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <iostream>
#include <memory>
#include <xcb/xtest.h>

namespace schemlet {

namespace {

/// Keys by their places on a PC's keyboard.
namespace place {
constexpr int escape = 9, enter = 36, control = 37, shift = 50, alt = 64, f1 = 67;
constexpr std::array arrows{111, 113, 114, 116};
constexpr std::array digits{10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 60};
/// Without the X: the question before the end would come up all the time. For the same reason menus are entered behind
/// the File menu and walked away from it.
constexpr std::array letters{24, 25, 26, 27, 28, 29, 30, 31, 32, 33, 38, 39, 40,
                             41, 42, 43, 44, 45, 46, 52, 54, 55, 56, 57, 58};
constexpr std::array menus{26, 46, 55};
constexpr std::array menuSteps{111, 114, 116, 116};
constexpr std::array others{escape, enter, 23, 65, 22, f1, 76, 110, 112, 115, 117, 119, 59, 47, 48, 79, 88};
} // namespace place

/// The other end of the screen: what it is told there looks to the program like keyboard and mouse.
class Hands {
public:
    explicit Hands(std::uint64_t seed)
        : m_chance(seed), m_screen(xcb_connect(nullptr, nullptr), xcb_disconnect),
          m_root(xcb_setup_roots_iterator(xcb_get_setup(m_screen.get())).data->root)
    {
    }

    /// Does something, and waits until the screen has done it.
    void act()
    {
        actByChance();
        free(xcb_get_input_focus_reply(m_screen.get(), xcb_get_input_focus(m_screen.get()), nullptr));
    }

private:
    void actByChance()
    {
        switch (m_chance.below(16)) {
        case 0: return tap(m_chance.of(place::letters), place::control);
        case 1: return walkMenu();
        case 2: return typeText();
        case 3: return tap(m_chance.of(place::others), place::shift);
        case 4:
        case 5: return tap(m_chance.of(place::others));
        case 6: return tap(m_chance.of(place::letters));
        case 7: return m_chance.oneIn(10) ? reshape() : move();
        case 8:
        case 9: return drag(XCB_BUTTON_INDEX_1, m_chance.below(10));
        case 10:
        case 11:
        case 12: return drag(1 + (m_chance.oneIn(3) ? m_chance.below(5) : 0), 0);
        default: return tap(m_chance.of(place::arrows));
        }
    }

    void fake(std::uint8_t kind, int detail, int x = 0, int y = 0)
    {
        xcb_test_fake_input(m_screen.get(), kind, static_cast<std::uint8_t>(detail), XCB_CURRENT_TIME, m_root,
                            static_cast<std::int16_t>(x), static_cast<std::int16_t>(y), 0);
    }
    void tap(int key)
    {
        fake(XCB_KEY_PRESS, key);
        fake(XCB_KEY_RELEASE, key);
    }
    void tap(int key, int modifier)
    {
        fake(XCB_KEY_PRESS, modifier);
        tap(key);
        fake(XCB_KEY_RELEASE, modifier);
    }
    void walkMenu()
    {
        tap(m_chance.of(place::menus), place::alt);
        for (int steps = m_chance.below(20); steps > 0; --steps) {
            tap(m_chance.of(place::menuSteps));
        }
        tap(m_chance.oneIn(3) ? place::escape : place::enter);
    }
    void typeText()
    {
        for (int length = m_chance.below(m_chance.oneIn(10) ? 300 : 8); length > 0; --length) {
            tap(m_chance.oneIn(4) ? m_chance.of(place::letters) : m_chance.of(place::digits));
        }
        tap(place::enter);
    }
    void move() { fake(XCB_MOTION_NOTIFY, 0, m_chance.below(1280), m_chance.below(1024)); }
    void drag(int button, int moves)
    {
        move();
        fake(XCB_BUTTON_PRESS, button);
        for (; moves > 0; --moves) {
            move();
        }
        fake(XCB_BUTTON_RELEASE, button);
    }
    /// Gives a window another place and size.
    void reshape()
    {
        const QString window = m_chance.oneIn(2) ? ":ACTIVE:" : "Schemlet";
        const QString shape = QString("0,%1,%2,%3,%4")
                                  .arg(m_chance.below(1000))
                                  .arg(m_chance.below(800))
                                  .arg(1 + m_chance.below(1500))
                                  .arg(1 + m_chance.below(1200));
        QProcess::execute("wmctrl", {"-r", window, "-e", shape});
    }

    Chance m_chance;
    std::unique_ptr<xcb_connection_t, void (*)(xcb_connection_t*)> m_screen;
    xcb_window_t m_root;
};

int residentMegabytes(const QProcess& program)
{
    QFile pages("/proc/" + QString::number(program.processId()) + "/statm");
    constexpr int pagesPerMegabyte = 256;
    return pages.open(QFile::ReadOnly) ? pages.readAll().split(' ').value(1).toInt() / pagesPerMegabyte : 0;
}

/// One run of the program, until it ends or is told to; says whether it ended well and had not grown by more megabytes.
bool live(Hands& hands, const QString& path, qint64 milliseconds, int growth)
{
    QProcess program;
    program.setProcessChannelMode(QProcess::ForwardedChannels);
    program.start(path, QStringList());
    QElapsedTimer age;
    age.start();
    int megabytes = 0;
    constexpr int moment = 2;    // milliseconds, the pace of the whole
    constexpr int warm = 50'000; // in which most dialogs have been open
    while (!program.waitForFinished(moment) && age.elapsed() < milliseconds) {
        if (megabytes == 0 && age.elapsed() >= warm) {
            megabytes = residentMegabytes(program);
        }
        hands.act();
    }
    const int grown = megabytes == 0 ? 0 : residentMegabytes(program) - megabytes;
    program.terminate();
    constexpr int patienceWithAsan = 60'000;
    const bool ended = program.state() == QProcess::NotRunning || program.waitForFinished(patienceWithAsan);
    std::cout << "  lived " << age.elapsed() / 1000 << " s, grew by " << grown << " MB" << std::endl;
    return ended && program.exitStatus() == QProcess::NormalExit && program.exitCode() == 0 && grown <= growth;
}

bool drive(const QString& program, std::uint64_t seed, qint64 milliseconds, int growth)
{
    Hands hands(seed);
    QElapsedTimer time;
    time.start();
    bool good = true;
    while (good && time.elapsed() < milliseconds) {
        good = live(hands, program, milliseconds - time.elapsed(), growth);
    }
    std::cout << "seed " << seed << (good ? ": good" : ": broken") << std::endl;
    return good;
}

} // namespace

} // namespace schemlet

int main(int argc, char* argv[])
{
    using namespace schemlet;
    const QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    if (words.size() != 5) {
        std::cerr << "drive_program PROGRAM SEED SECONDS MEGABYTES\n";
        return 2;
    }
    const Desk desk;
    return drive(words[1], words[2].toULongLong(), words[3].toInt() * 1000LL, words[4].toInt()) ? 0 : 1;
}
