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

    void act()
    {
        switch (m_chance.below(16)) {
        case 0: return press(place::control, m_chance.of(place::letters));
        case 1: return walkMenu();
        case 2: return typeText();
        case 3: return press(place::shift, m_chance.of(place::others));
        case 4:
        case 5: return tap(m_chance.of(place::others));
        case 6: return tap(m_chance.of(place::letters));
        case 7: return m_chance.oneIn(10) ? reshape() : move();
        case 8:
        case 9: return drag();
        case 10:
        case 11:
        case 12: return click(1 + (m_chance.oneIn(3) ? m_chance.below(5) : 0));
        default: return tap(m_chance.of(place::arrows));
        }
    }

    /// Waits until the screen has done all that.
    void finish() { free(xcb_get_input_focus_reply(m_screen.get(), xcb_get_input_focus(m_screen.get()), nullptr)); }

private:
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
    void press(int modifier, int key)
    {
        fake(XCB_KEY_PRESS, modifier);
        tap(key);
        fake(XCB_KEY_RELEASE, modifier);
    }
    void walkMenu()
    {
        press(place::alt, m_chance.of(place::menus));
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
    void click(int button)
    {
        move();
        fake(XCB_BUTTON_PRESS, button);
        fake(XCB_BUTTON_RELEASE, button);
    }
    void drag()
    {
        move();
        fake(XCB_BUTTON_PRESS, XCB_BUTTON_INDEX_1);
        for (int moves = m_chance.below(10); moves > 0; --moves) {
            move();
        }
        fake(XCB_BUTTON_RELEASE, XCB_BUTTON_INDEX_1);
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

/// One run of the program, from its start to its end or until it is told to end.
class Life {
public:
    explicit Life(const QString& path)
    {
        m_program.setProcessChannelMode(QProcess::ForwardedChannels);
        m_program.start(path, QStringList());
        m_age.start();
    }

    /// Looks after it for a moment; says whether it goes on.
    bool goesOn()
    {
        constexpr int moment = 2; // milliseconds, the pace of the whole
        if (m_program.waitForFinished(moment)) {
            return false;
        }
        constexpr int warm = 50; // seconds, in which most dialogs have been open
        if (m_megabytes == 0 && m_age.elapsed() >= 1000LL * warm) {
            m_megabytes = residentMegabytes(m_program);
        }
        return true;
    }

    /// Says whether it ended well and had not grown by more megabytes.
    bool endsWell(int growth)
    {
        const int grown = m_megabytes == 0 ? 0 : residentMegabytes(m_program) - m_megabytes;
        m_program.terminate();
        constexpr int patience = 60000; // milliseconds
        const bool ended = m_program.state() == QProcess::NotRunning || m_program.waitForFinished(patience);
        std::cout << "  lived " << m_age.elapsed() / 1000 << " s, grew by " << grown << " MB" << std::endl;
        return ended && m_program.exitStatus() == QProcess::NormalExit && m_program.exitCode() == 0 && grown <= growth;
    }

private:
    QProcess m_program;
    QElapsedTimer m_age;
    int m_megabytes = 0; ///< once it is warm
};

bool drive(const QString& program, std::uint64_t seed, int seconds, int growth)
{
    Hands hands(seed);
    QElapsedTimer time;
    time.start();
    long acts = 0;
    while (time.elapsed() < seconds * 1000LL) {
        Life life(program);
        while (time.elapsed() < seconds * 1000LL && life.goesOn()) {
            hands.act();
            hands.finish();
            ++acts;
        }
        if (!life.endsWell(growth)) {
            std::cout << "seed " << seed << ": broken after " << acts << " acts" << std::endl;
            return false;
        }
    }
    std::cout << "seed " << seed << ": " << acts << " acts" << std::endl;
    return true;
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
    return drive(words[1], words[2].toULongLong(), words[3].toInt(), words[4].toInt()) ? 0 : 1;
}
