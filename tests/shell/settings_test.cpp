#include "platform/event.h"
#include "shell/events.h"
#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>

namespace {

constexpr Color red = 0x0000FF;

void click(Bench& bench, Name item)
{
    deliver(bench.form, {.kind = Event::Kind::click, .name = item});
}

} // namespace

TEST(Colors, EachItemStoresIntoItsVariableAndTwoIntoNone)
{
    const std::pair<const char*, Color CanvasState::*> items[] = {{"resistancecolor", &CanvasState::resistanceColor},
                                                                  {"inductancecolor", &CanvasState::inductanceColor},
                                                                  {"capacitancecolor", &CanvasState::capacitanceColor},
                                                                  {"motorcolor", &CanvasState::motorColor},
                                                                  {"generatorcolor", &CanvasState::generatorColor},
                                                                  {"transformercolor", &CanvasState::transformerColor},
                                                                  {"ar", &CanvasState::armatureColor},
                                                                  {"field1", &CanvasState::fieldColor},
                                                                  {"transistorcolor", &CanvasState::transformerColor},
                                                                  {"gatescolor", &CanvasState::gatesColor},
                                                                  {"diodescolor", &CanvasState::diodesColor},
                                                                  {"buffercolor", &CanvasState::bufferColor},
                                                                  {"opampcolor", &CanvasState::opampColor},
                                                                  {"forec", &CanvasState::wireColor},
                                                                  {"foreco", &CanvasState::wireColor},
                                                                  {"batterycolor", nullptr},
                                                                  {"Thyristorscolor", nullptr}};
    for (const auto& [item, variable] : items) {
        Bench bench;
        bench.dialogs.picked = red;
        click(bench, item);
        int reds = 0;
        for (const auto& [other, stored] : items) {
            reds += stored != nullptr && bench.form.*stored == red && stored != variable ? 1 : 0;
        }
        EXPECT_EQ(reds, 0) << item;
        EXPECT_TRUE(variable == nullptr || bench.form.*variable == red) << item;
        EXPECT_EQ(bench.drawn(), "") << item;
    }
}

TEST(Colors, CanvasColourWipesTheDrawingAndReachesToolboxAndPanelBlackOnlyThePanel)
{
    Bench bench;
    bench.dialogs.picked = red;
    click(bench, "bc");
    EXPECT_EQ(bench.drawn(), "back 255\n");
    bench.dialogs.picked = black;
    click(bench, "backc");
    EXPECT_EQ(bench.drawn(), "");
    EXPECT_EQ(bench.window.at(control::Frame2).backColor, red);
    EXPECT_EQ(bench.form.canvasBackColor, black);
    for (const Name control :
         {control::Option2, control::Option3, control::Option4, control::Option5, control::bat, control::sup}) {
        EXPECT_EQ(bench.window.at(control).backColor, black) << control;
    }
    EXPECT_EQ(bench.pen(), "1600 1500");
}

TEST(Confirmations, EachItemSwitchesItsFamilysQuestionAndItsMark)
{
    const std::tuple<const char*, Confirm, const char*> items[] = {
        {"m", motorsConfirm, "acmotor"},
        {"gg", gatesConfirm, "and"},
        {"npnt", npnConfirm, "emitter"},
        {"pnpt", pnpConfirm, "emitter1"},
        {"jfett", jfetConfirm, "nchannel"},
        {"thy", thyristorsConfirm, "SCR"},
        {"dii", diodesConfirm, "diode"},
        {"buffer1", bufferConfirm, "buffering"},
        {"opamp1", opampConfirm, "opamp"},
        {"g", generatorsConfirm, "acgenerator"},
        {"tr", transformersConfirm, "singlephase"},
        {"aar", armatureConfirm, "armature"},
        {"f", fieldConfirm, "field"},
    };
    for (const auto& [item, family, symbol] : items) {
        Bench bench;
        EXPECT_TRUE(bench.window.checked(item));
        click(bench, item);
        EXPECT_FALSE(bench.window.checked(item));
        click(bench, symbol); // asks nothing
        EXPECT_NE(bench.drawn(), "") << symbol;
        bench.form.confirm[family] = 5; // any other value becomes 1, and the mark flips on its own
        click(bench, item);
        EXPECT_EQ(bench.form.confirm[family], 1);
        EXPECT_TRUE(bench.window.checked(item));
    }
}
