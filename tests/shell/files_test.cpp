#include "shell/files.h"

#include "circuit/output_window.h"
#include "platform/event.h"
#include "shell/confirmations.h"
#include "shell/events.h"
#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>

namespace {

constexpr const char* newFile = " - Schemlet 2.0  New File ";

void click(Bench& bench, Name item)
{
    deliver(bench.form, {.kind = Event::Kind::click, .name = item});
}

void press(Bench& bench, int code)
{
    deliver(bench.form, {.kind = Event::Kind::keyDown, .code = code});
}

void expectQuestion(Bench& bench, int answer)
{
    bench.dialogs.expect("Schemlet 2.0", answer);
}

} // namespace

TEST(Save, WritesThePictureAndNamesItInTheTitle)
{
    Bench bench;
    press(bench, key::right);
    bench.dialogs.fileToSave = "/home/me/my circuit.JPEG";
    click(bench, "save");
    EXPECT_EQ(bench.pictures.notes, "save /home/me/my circuit.JPEG\n");
    EXPECT_EQ(bench.dialogs.lastFilter, "JPEG, JPEG Files ( *.jpeg)|*.JPEG");
    EXPECT_EQ(bench.window.caption, " - Schemlet 2.0 my circuit.JPEG");
    EXPECT_EQ(bench.form.savedMark, 100);
}

TEST(Save, CancelledBringsItsMessageFailedIsSilentAndBothCountAsSaved)
{
    Bench bench;
    press(bench, key::right);
    bench.dialogs.fileToSave = "";
    expectQuestion(bench, 0);
    click(bench, "save");
    EXPECT_EQ(bench.dialogs.lastPrompt, "Unkown error while saving file ");
    EXPECT_EQ(bench.dialogs.lastStyle, Box::okOnly);
    EXPECT_EQ(bench.form.savedMark, 100);
    EXPECT_EQ(bench.window.caption, newFile);

    press(bench, key::right);
    bench.dialogs.fileToSave = "/full/disk";
    bench.pictures.fault = Fault::pictureNotSaved;
    click(bench, "save");
    EXPECT_EQ(bench.form.savedMark, 100);
    EXPECT_EQ(bench.window.caption, newFile);

    click(bench, "new"); // asks nothing
    EXPECT_EQ(bench.pen(), "1600 1500");
}

TEST(Open, DoesNothingBeforeThePenHasMovedSinceStartOrNew)
{
    Bench bench;
    bench.form.pencilTool = 1;
    click(bench, "open");
    EXPECT_EQ(bench.form.pencilTool, 0); // but this
    press(bench, key::right);
    expectQuestion(bench, answer::no);
    click(bench, "new");
    click(bench, "open");
}

TEST(Open, TakesThePictureAndItsNameOrLeavesTheOddTitleOfACancelledDialog)
{
    struct Case {
        int answer;
        const char* file;
        const char* caption;
    };
    for (const Case& c :
         {Case{answer::yes, "/a/b.png", " - Schemlet 2.0 b.png"}, Case{answer::yes, "", " - Schemlet 2.0 "},
          Case{answer::no, "/a/b.png", " - Schemlet 2.0 b.png"}, Case{answer::no, "", newFile}}) {
        Bench bench;
        press(bench, key::right);
        bench.window.caption = "before";
        expectQuestion(bench, c.answer);
        if (c.answer == answer::yes) {
            bench.dialogs.fileToSave = "/a/saved.JPEG";
        }
        bench.dialogs.fileToOpen = c.file;
        click(bench, "open");
        EXPECT_EQ(bench.window.caption, c.caption);
        const std::string loaded = *c.file == '\0' ? "" : "load " + std::string(c.file) + "\n";
        EXPECT_EQ(bench.pictures.notes, (c.answer == answer::yes ? "save /a/saved.JPEG\n" : "") + loaded);
        EXPECT_EQ(bench.form.heading, c.answer);
    }
}

TEST(Open, LeavesEverythingForABrokenPictureOrCancel)
{
    Bench bench;
    press(bench, key::right);
    bench.form.heading = heading::up;
    expectQuestion(bench, answer::cancel);
    click(bench, "open");
    EXPECT_EQ(bench.form.heading, 2);
    expectQuestion(bench, answer::no);
    bench.dialogs.fileToOpen = "/a/broken.png";
    bench.pictures.fault = Fault::invalidPicture;
    expectQuestion(bench, 0);
    click(bench, "open");
    EXPECT_EQ(bench.dialogs.lastPrompt, "Invalid picture");
    EXPECT_EQ(bench.window.caption, newFile);
}

TEST(New, BringsBackTheStartButKeepsWhatIsNotTheDrawings)
{
    Bench bench;
    press(bench, key::down);
    bench.form.gatesColor = 0x0000FF;
    bench.form.canvasBackColor = 0x00FFFF;
    bench.form.resist = bench.form.resonanceFrequency = 5;
    bench.output.at(form4::Label22).text = "0.2";
    click(bench, "linee");
    click(bench, "jj");
    click(bench, "gg");
    click(bench, "eraser");
    bench.drawn();
    expectQuestion(bench, answer::no);
    click(bench, "new");
    EXPECT_EQ(bench.drawn(), "back 16777215\nclear\n");
    EXPECT_EQ(bench.surface.drawWidth(), 2);
    EXPECT_EQ(bench.surface.current().x, 1600); // the pen's old place
    EXPECT_EQ(bench.surface.current().y, 1550);
    EXPECT_EQ(bench.pen(), "1600 1500");
    EXPECT_EQ(bench.marker(), "1600 1200");
    EXPECT_EQ(bench.form.heading, answer::no); // until the next arrow key
    EXPECT_EQ(bench.window.caption, newFile);
    EXPECT_EQ(bench.form.eraseMode, 0);
    EXPECT_FALSE(bench.window.at(control::Label27).visible);
    EXPECT_EQ(bench.form.confirm[gatesConfirm], 1);
    EXPECT_TRUE(bench.window.checked("gg"));
    EXPECT_EQ(bench.form.resist, 0);
    EXPECT_EQ(bench.output.at(form4::Label22).text, "0");
    EXPECT_EQ(bench.window.at(control::bat).backColor, white);
    EXPECT_EQ(bench.form.savedMark, 100);
    EXPECT_EQ(bench.form.penMoved, 0);

    EXPECT_EQ(bench.form.gatesColor, 0x0000FFU);
    EXPECT_EQ(bench.form.lineTool, 1);
    EXPECT_EQ(bench.form.autoJumper, 1);
    EXPECT_TRUE(bench.window.checked("jj"));
}

TEST(New, AsksOnlyAfterAChangeAndKeepsTheDrawingOnCancel)
{
    Bench bench;
    bench.form.heading = heading::left;
    click(bench, "new");
    EXPECT_EQ(bench.form.heading, heading::right);

    press(bench, key::down);
    bench.drawn();
    expectQuestion(bench, answer::cancel);
    click(bench, "new");
    EXPECT_EQ(bench.dialogs.lastPrompt, "Do you want to save changes?");
    EXPECT_EQ(bench.dialogs.lastStyle, Box::yesNoCancelWarning);
    EXPECT_EQ(bench.drawn(), "");
    EXPECT_EQ(bench.form.heading, 2);
    EXPECT_EQ(bench.form.savedMark, 0);

    expectQuestion(bench, answer::yes);
    bench.dialogs.fileToSave = "/a/b.JPEG";
    click(bench, "new");
    EXPECT_EQ(bench.drawn(), "back 16777215\nclear\n");
    EXPECT_EQ(bench.window.caption, newFile);
    EXPECT_EQ(bench.form.heading, answer::yes);
}

TEST(Print, AsksFirst)
{
    Bench bench;
    for (const int reply : {answer::no, answer::cancel, answer::yes}) {
        expectQuestion(bench, reply);
        click(bench, "print");
        EXPECT_EQ(bench.dialogs.lastPrompt, " Do you want to print this form?");
        EXPECT_EQ(bench.window.timesPrinted, reply == answer::yes ? 1 : 0);
    }
}

TEST(Exit, AlwaysAsksAndEndsAfterYesEvenIfSavingWasCancelled)
{
    for (const int reply : {answer::cancel, answer::no, answer::yes}) {
        Bench bench;
        expectQuestion(bench, reply);
        if (reply == answer::yes) {
            bench.dialogs.fileToSave = "";
            expectQuestion(bench, 0);
        }
        if (reply == answer::no) {
            deliver(bench.form, {.kind = Event::Kind::close});
        } else {
            click(bench, "exit");
        }
        EXPECT_EQ(bench.window.timesEnded, reply == answer::cancel ? 0 : 1);
        EXPECT_EQ(bench.form.heading, reply);
    }
}
