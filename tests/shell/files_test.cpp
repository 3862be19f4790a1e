#include "shell/files.h"

#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>

namespace schemlet {

namespace {

constexpr const char* newFile = " - Schemlet 2.0  New File ";

/// With a drawing that has changed.
struct ChangedBench : Rig {
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
    ChangedBench rig;
    rig.dialogs.fileToSave = "/home/me/my circuit.JPEG";
    rig.click("save");
    EXPECT_EQ(rig.pictures.notes, "save /home/me/my circuit.JPEG\n");
    EXPECT_EQ(rig.dialogs.lastFilter, "JPEG, JPEG Files ( *.jpeg)|*.JPEG");
    EXPECT_EQ(rig.window.caption, " - Schemlet 2.0 my circuit.JPEG");
    EXPECT_EQ(rig.form.savedMark, 100);
    for (const char* const proposed : {"my circuit.JPEG", ""}) {
        rig.dialogs.fileToSave = "/full/disk";
        rig.pictures.fault = Fault::pictureNotSaved;
        rig.click("save");
        EXPECT_EQ(rig.dialogs.lastName, proposed);
        rig.click("new");
    }
}

TEST(Save, CountsEvenIfCancelledWhichBringsAMessageOrFailedWhichIsSaidUntilTheNextOneOrNew)
{
    ChangedBench rig;
    const auto said = [&rig] {
        rig.tick(control::statusTimer);
        return rig.window.at(control::sbNotice).text;
    };
    const auto fail = [&rig] {
        rig.dialogs.fileToSave = "/full/disk";
        rig.pictures.fault = Fault::pictureNotSaved;
    };
    const std::string notSaved = "Not saved: Invalid picture"; // the stand-in's cause
    fail();
    rig.click("save");
    EXPECT_EQ(rig.form.savedMark, 100);
    EXPECT_EQ(rig.window.caption, newFile);
    EXPECT_EQ(said(), notSaved);
    rig.click("batterycolor");
    EXPECT_NE(said(), notSaved);
    rig.tick(control::noticeTimer);
    EXPECT_EQ(said(), notSaved);
    EXPECT_TRUE(rig.window.at(control::Canvas).description.starts_with("Pen")); // it is not spoken with every step

    rig.press(key::right);
    rig.dialogs.fileToSave = "";
    rig.clickAndAnswer("save", 0);
    EXPECT_EQ(rig.dialogs.lastPrompt, "Unkown error while saving file ");
    EXPECT_EQ(rig.dialogs.lastStyle, Box::okOnly);
    EXPECT_EQ(rig.form.savedMark, 100);
    EXPECT_EQ(said(), notSaved);
    rig.dialogs.fileToSave = "/home/a";
    rig.click("save");
    EXPECT_EQ(said(), "");

    rig.press(key::up);
    fail();
    rig.clickAndAnswer("new", answer::yes);
    EXPECT_EQ(said(), notSaved); // the drawing is lost
    rig.click("new");            // asks nothing
    EXPECT_EQ(said(), "");
}

TEST(Open, DoesNothingBeforeThePenHasMovedSinceStartOrNew)
{
    ChangedBench rig;
    rig.clickAndAnswer("new", answer::no);
    rig.form.pencilTool = 1;
    rig.click("open");
    EXPECT_EQ(rig.form.pencilTool, 0); // but this
    Rig().click("open");
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
        ChangedBench rig;
        rig.window.caption = "before";
        if (c.answer == answer::yes) {
            rig.dialogs.fileToSave = "/a/saved.JPEG";
        }
        rig.dialogs.fileToOpen = c.file;
        rig.clickAndAnswer("open", c.answer);
        EXPECT_EQ(rig.window.caption, c.caption);
        EXPECT_EQ(rig.pictures.notes, (c.answer == answer::yes ? "save /a/saved.JPEG\n" : "") +
                                          (c.file.empty() ? "" : "load " + c.file + "\n"));
        EXPECT_EQ(rig.form.heading, c.answer);
    }
}

TEST(Open, LeavesEverythingForABrokenPictureOrCancel)
{
    ChangedBench rig;
    rig.clickAndAnswer("open", answer::cancel);
    EXPECT_EQ(rig.form.heading, 2);
    rig.dialogs.expect("Schemlet 2.0", answer::no);
    rig.dialogs.fileToOpen = "/a/broken.png";
    rig.pictures.fault = Fault::invalidPicture;
    rig.clickAndAnswer("open", 0); // its message
    EXPECT_EQ(rig.dialogs.lastPrompt, "Invalid picture");
    EXPECT_EQ(rig.window.caption, newFile);
}

TEST(New, BringsBackTheStartButKeepsWhatIsNotTheDrawings)
{
    ChangedBench rig;
    CanvasState& state = rig.form;
    rig.output.at(form4::control::Label22).text = "0.2";
    rig.window.at(control::Option2).value = 1;
    rig.dialogs.picked = 0x0000FF;
    for (const char* const item : {"gatescolor", "forec", "bc", "linee", "jj", "gg", "eraser", "Label1"}) {
        rig.click(item);
    }
    rig.mouseMove(button::left, 900, 900);
    rig.drawn();
    rig.clickAndAnswer("new", answer::no);
    EXPECT_EQ(rig.outcome(), "back 16777215\nclear\n" + std::string(nothing));
    EXPECT_EQ(rig.surface.foreColor, black);
    EXPECT_EQ(rig.surface.drawWidth(), 2);
    EXPECT_EQ(rig.surface.current().x, 1650); // the pen's old place
    EXPECT_EQ(rig.surface.current().y, 1500);
    EXPECT_EQ(state.heading, answer::no); // until the next arrow key
    EXPECT_EQ(rig.window.caption, newFile);
    EXPECT_EQ(state.eraseMode + state.toolboxFollow + state.penMoved, 0);
    EXPECT_FALSE(rig.window.at(control::Label27).visible || rig.window.at(control::Shape1).visible);
    EXPECT_EQ(state.confirm[gatesConfirm], 1);
    EXPECT_TRUE(rig.window.checked("gg"));
    EXPECT_EQ(rig.output.at(form4::control::Label22).text, "0");
    EXPECT_EQ(rig.window.at(control::Option2).value, 0);
    EXPECT_EQ(rig.window.at(control::bat).backColor, white);
    EXPECT_EQ(state.wireColor, black);
    EXPECT_EQ(state.savedMark, 100);

    EXPECT_EQ(state.gatesColor, 0x0000FFU);
    EXPECT_EQ(state.lineTool + state.autoJumper, 2);
    EXPECT_TRUE(rig.window.checked("jj"));
}

TEST(New, SetsEverySumAndResultTo0)
{
    using State = CanvasState;
    for (double State::*const sum :
         {&State::resist, &State::induc, &State::capac, &State::supplyVoltage, &State::supplyCurrent,
          &State::supplyValue, &State::batteryPositive, &State::batteryNegative, &State::resonanceDenominator,
          &State::resonanceFrequency, &State::qualityFactor, &State::frequencyCopy, &State::angularFrequency,
          &State::frequencyCapac, &State::capacitiveReactance}) {
        Rig rig;
        rig.form.*sum = rig.form.diodeCount = 5;
        rig.click("new");
        EXPECT_EQ(rig.form.*sum + rig.form.diodeCount, 0);
    }
}

TEST(New, AsksOnlyAfterAChangeAndKeepsTheDrawingOnCancel)
{
    ChangedBench rig;
    rig.drawn();
    rig.clickAndAnswer("new", answer::cancel);
    EXPECT_EQ(rig.dialogs.lastPrompt, "Do you want to save changes?");
    EXPECT_EQ(rig.dialogs.lastStyle, Box::yesNoCancelWarning);
    EXPECT_EQ(rig.drawn(), "");
    EXPECT_EQ(rig.form.heading, 2);
    EXPECT_EQ(rig.form.savedMark, 0);

    rig.dialogs.fileToSave = "/a/b.JPEG";
    rig.clickAndAnswer("new", answer::yes);
    EXPECT_EQ(rig.drawn(), "back 16777215\nclear\n");
    EXPECT_EQ(rig.window.caption, newFile);
    EXPECT_EQ(rig.form.heading, answer::yes);

    rig.click("new");
    EXPECT_EQ(rig.form.heading, heading::right);
}

TEST(Print, AsksFirst)
{
    ChangedBench rig;
    for (const int reply : {answer::no, answer::cancel, answer::yes}) {
        rig.clickAndAnswer("print", reply);
        EXPECT_EQ(rig.dialogs.lastPrompt, " Do you want to print this form?");
        EXPECT_EQ(rig.window.timesPrinted, reply == answer::yes ? 1 : 0);
    }
}

TEST(Exit, AlwaysAsksAndEndsAfterYesEvenIfSavingWasCancelled)
{
    for (const int reply : {answer::cancel, answer::no, answer::yes}) {
        for (const bool byFrame : {false, true}) {
            Rig rig;
            rig.dialogs.expect("Schemlet 2.0", reply);
            if (reply == answer::yes) {
                rig.dialogs.fileToSave = "";
                rig.dialogs.expect("Schemlet 2.0", 0);
            }
            byFrame ? rig.close() : rig.click("exit");
            EXPECT_EQ(rig.window.timesEnded, reply == answer::cancel ? 0 : 1);
            EXPECT_EQ(rig.form.heading, reply);
        }
    }
}

} // namespace schemlet
