#include "shell/files.h"

#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>

namespace {

constexpr const char* newFile = " - Schemlet 2.0  New File ";

/// With a drawing that has changed.
struct ChangedBench : Bench {
    ChangedBench() { press(key::right); }

    /// Runs a command that asks before it does what it does.
    void clickAndAnswer(Name item, int answer)
    {
        dialogs.expect("Schemlet 2.0", answer);
        click(item);
    }
};

} // namespace

TEST(Save, WritesThePictureAndNamesItInTheTitle)
{
    ChangedBench bench;
    bench.dialogs.fileToSave = "/home/me/my circuit.JPEG";
    bench.click("save");
    EXPECT_EQ(bench.pictures.notes, "save /home/me/my circuit.JPEG\n");
    EXPECT_EQ(bench.dialogs.lastFilter, "JPEG, JPEG Files ( *.jpeg)|*.JPEG");
    EXPECT_EQ(bench.window.caption, " - Schemlet 2.0 my circuit.JPEG");
    EXPECT_EQ(bench.form.savedMark, 100);
    for (const char* const proposed : {"my circuit.JPEG", ""}) {
        bench.dialogs.fileToSave = "/full/disk";
        bench.pictures.fault = Fault::pictureNotSaved;
        bench.click("save");
        EXPECT_EQ(bench.dialogs.lastName, proposed);
        bench.click("new");
    }
}

TEST(Save, CountsEvenIfCancelledWhichBringsAMessageOrFailedWhichIsSaidUntilTheNextOneOrNew)
{
    ChangedBench bench;
    const auto said = [&bench] {
        bench.tick(control::statusTimer);
        return bench.window.at(control::sbNotice).text;
    };
    const auto fail = [&bench] {
        bench.dialogs.fileToSave = "/full/disk";
        bench.pictures.fault = Fault::pictureNotSaved;
    };
    const std::string notSaved = "Not saved: Invalid picture"; // the stand-in's cause
    fail();
    bench.click("save");
    EXPECT_EQ(bench.form.savedMark, 100);
    EXPECT_EQ(bench.window.caption, newFile);
    EXPECT_EQ(said(), notSaved);
    bench.click("batterycolor");
    EXPECT_NE(said(), notSaved);
    bench.tick(control::noticeTimer);
    EXPECT_EQ(said(), notSaved);
    EXPECT_TRUE(bench.window.at(control::Canvas).description.starts_with("Pen")); // it is not spoken with every step

    bench.press(key::right);
    bench.dialogs.fileToSave = "";
    bench.clickAndAnswer("save", 0);
    EXPECT_EQ(bench.dialogs.lastPrompt, "Unkown error while saving file ");
    EXPECT_EQ(bench.dialogs.lastStyle, Box::okOnly);
    EXPECT_EQ(bench.form.savedMark, 100);
    EXPECT_EQ(said(), notSaved);
    bench.dialogs.fileToSave = "/home/a";
    bench.click("save");
    EXPECT_EQ(said(), "");

    bench.press(key::up);
    fail();
    bench.clickAndAnswer("new", answer::yes);
    EXPECT_EQ(said(), notSaved); // the drawing is lost
    bench.click("new");          // asks nothing
    EXPECT_EQ(said(), "");
}

TEST(Open, DoesNothingBeforeThePenHasMovedSinceStartOrNew)
{
    ChangedBench bench;
    bench.clickAndAnswer("new", answer::no);
    bench.form.pencilTool = 1;
    bench.click("open");
    EXPECT_EQ(bench.form.pencilTool, 0); // but this
    Bench().click("open");
}

TEST(Open, TakesThePictureAndItsNameOrLeavesTheOddTitleOfACancelledDialog)
{
    struct Case {
        int answer;
        std::string file;
        const char* caption;
    };
    for (const Case& c :
         {Case{answer::yes, "/a/b.png", " - Schemlet 2.0 b.png"}, Case{answer::yes, "", " - Schemlet 2.0 "},
          Case{answer::no, "/a/b.png", " - Schemlet 2.0 b.png"}, Case{answer::no, "", newFile}}) {
        ChangedBench bench;
        bench.window.caption = "before";
        if (c.answer == answer::yes) {
            bench.dialogs.fileToSave = "/a/saved.JPEG";
        }
        bench.dialogs.fileToOpen = c.file;
        bench.clickAndAnswer("open", c.answer);
        EXPECT_EQ(bench.window.caption, c.caption);
        EXPECT_EQ(bench.pictures.notes, (c.answer == answer::yes ? "save /a/saved.JPEG\n" : "") +
                                            (c.file.empty() ? "" : "load " + c.file + "\n"));
        EXPECT_EQ(bench.form.heading, c.answer);
    }
}

TEST(Open, LeavesEverythingForABrokenPictureOrCancel)
{
    ChangedBench bench;
    bench.clickAndAnswer("open", answer::cancel);
    EXPECT_EQ(bench.form.heading, 2);
    bench.dialogs.expect("Schemlet 2.0", answer::no);
    bench.dialogs.fileToOpen = "/a/broken.png";
    bench.pictures.fault = Fault::invalidPicture;
    bench.clickAndAnswer("open", 0); // its message
    EXPECT_EQ(bench.dialogs.lastPrompt, "Invalid picture");
    EXPECT_EQ(bench.window.caption, newFile);
}

TEST(New, BringsBackTheStartButKeepsWhatIsNotTheDrawings)
{
    ChangedBench bench;
    CanvasState& state = bench.form;
    bench.output.at(form4::control::Label22).text = "0.2";
    bench.window.at(control::Option2).value = 1;
    bench.dialogs.picked = 0x0000FF;
    for (const char* const item : {"gatescolor", "forec", "bc", "linee", "jj", "gg", "eraser", "Label1"}) {
        bench.click(item);
    }
    bench.mouseMove(button::left, 900, 900);
    bench.drawn();
    bench.clickAndAnswer("new", answer::no);
    EXPECT_EQ(bench.outcome(), "back 16777215\nclear\n" + std::string(nothing));
    EXPECT_EQ(bench.surface.foreColor, black);
    EXPECT_EQ(bench.surface.drawWidth(), 2);
    EXPECT_EQ(bench.surface.current().x, 1650); // the pen's old place
    EXPECT_EQ(bench.surface.current().y, 1500);
    EXPECT_EQ(state.heading, answer::no); // until the next arrow key
    EXPECT_EQ(bench.window.caption, newFile);
    EXPECT_EQ(state.eraseMode + state.toolboxFollow + state.penMoved, 0);
    EXPECT_FALSE(bench.window.at(control::Label27).visible || bench.window.at(control::Shape1).visible);
    EXPECT_EQ(state.confirm[gatesConfirm], 1);
    EXPECT_TRUE(bench.window.checked("gg"));
    EXPECT_EQ(bench.output.at(form4::control::Label22).text, "0");
    EXPECT_EQ(bench.window.at(control::Option2).value, 0);
    EXPECT_EQ(bench.window.at(control::bat).backColor, white);
    EXPECT_EQ(state.wireColor, black);
    EXPECT_EQ(state.savedMark, 100);

    EXPECT_EQ(state.gatesColor, 0x0000FFU);
    EXPECT_EQ(state.lineTool + state.autoJumper, 2);
    EXPECT_TRUE(bench.window.checked("jj"));
}

TEST(New, SetsEverySumAndResultTo0)
{
    using State = CanvasState;
    for (double State::*const sum :
         {&State::resist, &State::induc, &State::capac, &State::supplyVoltage, &State::supplyCurrent,
          &State::supplyValue, &State::batteryPositive, &State::batteryNegative, &State::resonanceDenominator,
          &State::resonanceFrequency, &State::qualityFactor, &State::frequencyCopy, &State::angularFrequency,
          &State::frequencyCapac, &State::capacitiveReactance}) {
        Bench bench;
        bench.form.*sum = bench.form.diodeCount = 5;
        bench.click("new");
        EXPECT_EQ(bench.form.*sum + bench.form.diodeCount, 0);
    }
}

TEST(New, AsksOnlyAfterAChangeAndKeepsTheDrawingOnCancel)
{
    ChangedBench bench;
    bench.drawn();
    bench.clickAndAnswer("new", answer::cancel);
    EXPECT_EQ(bench.dialogs.lastPrompt, "Do you want to save changes?");
    EXPECT_EQ(bench.dialogs.lastStyle, Box::yesNoCancelWarning);
    EXPECT_EQ(bench.drawn(), "");
    EXPECT_EQ(bench.form.heading, 2);
    EXPECT_EQ(bench.form.savedMark, 0);

    bench.dialogs.fileToSave = "/a/b.JPEG";
    bench.clickAndAnswer("new", answer::yes);
    EXPECT_EQ(bench.drawn(), "back 16777215\nclear\n");
    EXPECT_EQ(bench.window.caption, newFile);
    EXPECT_EQ(bench.form.heading, answer::yes);

    bench.click("new");
    EXPECT_EQ(bench.form.heading, heading::right);
}

TEST(Print, AsksFirst)
{
    ChangedBench bench;
    for (const int reply : {answer::no, answer::cancel, answer::yes}) {
        bench.clickAndAnswer("print", reply);
        EXPECT_EQ(bench.dialogs.lastPrompt, " Do you want to print this form?");
        EXPECT_EQ(bench.window.timesPrinted, reply == answer::yes ? 1 : 0);
    }
}

TEST(Exit, AlwaysAsksAndEndsAfterYesEvenIfSavingWasCancelled)
{
    for (const int reply : {answer::cancel, answer::no, answer::yes}) {
        for (const bool byFrame : {false, true}) {
            Bench bench;
            bench.dialogs.expect("Schemlet 2.0", reply);
            if (reply == answer::yes) {
                bench.dialogs.fileToSave = "";
                bench.dialogs.expect("Schemlet 2.0", 0);
            }
            byFrame ? bench.close() : bench.click("exit");
            EXPECT_EQ(bench.window.timesEnded, reply == answer::cancel ? 0 : 1);
            EXPECT_EQ(bench.form.heading, reply);
        }
    }
}
