// Draws a sheet with every symbol, in each heading that makes a difference, and the program's own pictures:
//   symbol_sheet FILE

#include "canvas/jumper_ground.h"
#include "circuit/sources.h"
#include "circuit/valued_components.h"
#include "platform/qt/qt_surface.h"
#include "shell/commands.h"
#include "shell/product_picture.h"
#include "symbols/bipolar.h"
#include "symbols/buffer_not_opamp.h"
#include "symbols/diodes.h"
#include "symbols/gates.h"
#include "symbols/jfets.h"
#include "symbols/machines.h"
#include "symbols/thyristors.h"
#include "symbols/transformers.h"

#include <QGuiApplication>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <span>
#include <vector>

namespace schemlet {

namespace {

struct Entry {
    const char* name = "";
    void (*draw)(Surface&, Pen&) = nullptr;
    std::initializer_list<int> headings;
};

/// A symbol, a component or a source.
template <const auto& component> void draw(Surface& surface, Pen& pen)
{
    draw(surface, pen, component.branches, "10");
}

void drawHop(Surface& surface, Pen& pen)
{
    drawJumper(surface, pen);
}

void drawBars(Surface& surface, Pen& pen)
{
    drawGround(surface, pen);
}

constexpr auto once = {heading::right}; // for symbols that look the same for every heading, or have only this one
constexpr auto fourWays = {heading::right, heading::left, heading::up, heading::down};

const Entry entries[] = {
    {"Jumper", drawHop, fourWays},
    {"Ground", drawBars, once},
    {"AND gate", draw<andGate>, once},
    {"OR gate", draw<orGate>, once},
    {"NOR gate", draw<norGate>, once},
    {"NAND gate", draw<nandGate>, once},
    {"EX-OR gate", draw<exorGate>, once},
    {"EX-NOR gate", draw<exnorGate>, once},
    {"NOT gate", draw<notGate>, fourWays},
    {"Buffer", draw<bufferSymbol>, fourWays},
    {"PN diode", draw<pnDiode>, fourWays},
    {"NP diode", draw<npDiode>, fourWays},
    {"Zener diode", draw<zenerDiode>, once},
    {"Tunnel diode", draw<tunnelDiode>, once},
    {"Resistance", draw<resistor>, fourWays},
    {"Inductance", draw<inductor>, fourWays},
    {"Capacitance", draw<capacitor>, fourWays},
    {"Positive battery", draw<positiveBattery>, fourWays},
    {"Negative battery", draw<negativeBattery>, fourWays},
    {"Voltage supply", draw<voltageSupply>, fourWays},
    {"Current supply", draw<currentSupply>, fourWays},
    {"Op-amp", draw<opAmp>, once},
    {"Field", draw<fieldWinding>, once},
    {"NPN common emitter", draw<npnEmitter>, once},
    {"NPN common base", draw<npnBase>, once},
    {"NPN common collector", draw<npnCollector>, once},
    {"PNP common emitter", draw<pnpEmitter>, once},
    {"PNP common base", draw<pnpBase>, once},
    {"PNP common collector", draw<pnpCollector>, once},
    {"N-channel JFET", draw<nChannelJfet>, once},
    {"P-channel JFET", draw<pChannelJfet>, once},
    {"SCR", draw<scrThyristor>, once},
    {"TRIAC", draw<triacThyristor>, once},
    {"DIAC", draw<diacThyristor>, once},
    {"UJT", draw<ujtThyristor>, once},
    {"AC motor", draw<acMotor>, once},
    {"DC motor", draw<dcMotor>, once},
    {"AC generator", draw<acGenerator>, once},
    {"DC generator", draw<dcGenerator>, once},
    {"Armature", draw<armatureWinding>, once},
    {"Single phase transformer", draw<singlePhaseTransformer>, once},
    {"Center tapped transformer", draw<centerTappedTransformer>, once},
};

/// One symbol on paper of its own, in pixels.
struct Drawing {
    QImage image;
    QRect ink; ///< without texts that a symbol prints at the paper's left edge
    QPointF entry, exit;
};

Drawing drawAt(const Entry& entry, int heading, QSize paper, QPointF pen)
{
    QtSurface surface;
    surface.growTo(paper);
    Drawing drawing;
    surface.changed = [&](const QRect& part) { drawing.ink |= part.left() > 1 ? part : QRect(); };
    Pen moved{std::round(pen.x() * twipsPerPixel), std::round(pen.y() * twipsPerPixel), heading};
    entry.draw(surface, moved);
    drawing.image = surface.image();
    drawing.entry = pen;
    drawing.exit = QPointF(moved.x, moved.y) / twipsPerPixel;
    return drawing;
}

struct Cell {
    const Entry& entry;
    int heading;
    QRect extent; ///< of the symbol and its pen, on scratch paper with the pen at scratchPen
};

constexpr int columns = 10;
constexpr int cellWidth = 160;
constexpr QSize scratchPaper{600, 600};
constexpr QPoint scratchPen{300, 300};

std::vector<Cell> allCells()
{
    std::vector<Cell> cells;
    for (const Entry& entry : entries) {
        for (const int heading : entry.headings) {
            const Drawing trial = drawAt(entry, heading, scratchPaper, scratchPen);
            const QRect pens = QRect(trial.exit.toPoint(), QSize(1, 1)) | QRect(scratchPen, QSize(1, 1));
            cells.push_back({entry, heading, trial.ink | pens});
        }
    }
    return cells;
}

QString title(const Cell& cell)
{
    constexpr const char* ways[] = {"", ", right", ", left", ", up", ", down"};
    return QString(cell.entry.name) + (cell.entry.headings.size() > 1 ? ways[cell.heading] : "");
}

/// Paints the symbol in the middle, marks where the pen starts and where it stops, and writes its name below.
void paintCell(QPainter& painter, const QRect& place, const Cell& cell)
{
    constexpr int titleHeight = 18;
    const QSize paper = place.size() - QSize(0, titleHeight);
    const QPoint inside((paper.width() - cell.extent.width()) / 2, (paper.height() - cell.extent.height()) / 2);
    const Drawing drawing = drawAt(cell.entry, cell.heading, paper, inside + scratchPen - cell.extent.topLeft());
    painter.drawImage(place.topLeft(), drawing.image);

    painter.setPen(QColor(0, 110, 220));
    painter.drawEllipse(place.topLeft() + drawing.entry.toPoint(), 4, 4);
    painter.setPen(QColor(220, 30, 30));
    const QPoint exit = place.topLeft() + drawing.exit.toPoint();
    painter.drawLine(exit - QPoint(4, 4), exit + QPoint(4, 4));
    painter.drawLine(exit - QPoint(4, -4), exit + QPoint(4, -4));

    painter.setPen(Qt::black);
    painter.drawText(place.bottomLeft() + QPoint(6, -6), title(cell));
    painter.setPen(QColor(210, 210, 210));
    painter.drawRect(place);
}

/// Paints all cells and returns their height.
int paintCells(QPainter& painter)
{
    constexpr int aroundSymbol = 44; // pixels, its title among them
    const std::vector<Cell> cells = allCells();
    int top = 0;
    for (std::size_t first = 0; first < cells.size(); first += columns) {
        const auto row = std::span(cells).subspan(first, std::min<std::size_t>(columns, cells.size() - first));
        const auto height = [](const Cell& cell) { return cell.extent.height(); };
        const int rowHeight = height(*std::ranges::max_element(row, {}, height)) + aroundSymbol;
        for (int left = 0; const Cell& cell : row) {
            paintCell(painter, QRect(left, top, cellWidth, rowHeight), cell);
            left += cellWidth;
        }
        top += rowHeight;
    }
    painter.setPen(Qt::black);
    painter.drawText(
        6, top + 17,
        "Blue circle: where the pen comes in. Red cross: where it goes on. Below: the pictures of the splash "
        "and the about window, and those of the toolbox.");
    return top + 24;
}

void paintPicture(QPainter& painter, const QRect& place, void (*draw)(Surface&))
{
    QtSurface surface;
    surface.growTo(place.size());
    draw(surface);
    painter.drawImage(place.topLeft(), surface.image());
    painter.setPen(QColor(210, 210, 210));
    painter.drawRect(place);
}

/// Paints the pictures of the toolbox, the splash and the about window in their sizes, and returns their height.
int paintPictures(QPainter& painter, int top)
{
    constexpr QSize sketch{72, 42};
    constexpr QSize product{440, 190};
    constexpr int gap = 8;
    constexpr int perRow = 5;
    paintPicture(painter, {{gap, top + gap}, product}, drawProductPicture);

    for (int i = 0; const ToolPicture& picture : toolboxPictures()) {
        if (picture.draw == nullptr) {
            continue;
        }
        const QPoint place(product.width() + 2 * gap + i % perRow * (sketch.width() + gap),
                           top + gap + i / perRow * (sketch.height() + gap));
        paintPicture(painter, {place, sketch}, picture.draw);
        ++i;
    }
    return product.height() + 2 * gap;
}

QImage drawSheet()
{
    constexpr QSize endless{columns * cellWidth + 1, 4000}; // cut where the sheet ends
    QImage sheet(endless, QImage::Format_RGB32);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    painter.setFont(canvasFont());
    const int cells = paintCells(painter);
    const int pictures = paintPictures(painter, cells);
    painter.end();
    return sheet.copy(0, 0, sheet.width(), cells + pictures);
}

} // namespace

} // namespace schemlet

int main(int argc, char* argv[])
{
    using namespace schemlet;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    if (argc != 2) {
        qCritical("symbol_sheet FILE");
        return 2;
    }
    return drawSheet().save(argv[1]) ? 0 : 1;
}
