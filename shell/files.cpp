#include "shell/files.h"

#include "canvas/notice.h"
#include "circuit/output_window.h"
#include "platform/runtime_error.h"
#include "shell/confirmations.h"
#include "shell/main_window.h"

#include <filesystem>

namespace schemlet {

namespace {

void askToSave(Form1& form)
{
    form.heading = form.dialogs.messageBox("Do you want to save changes?", Box::yesNoCancelWarning, productName);
}

std::string withoutFolder(std::string_view path)
{
    return std::filesystem::path(path).filename().string();
}

} // namespace

void setTitle(Form1& form, std::string_view file)
{
    form.title = file;
    form.window.setCaption(" - " + std::string(productName) + " " + form.title);
}

void new_(Form1& form)
{
    form.penMoved = 0;
    if (form.savedMark != 0) {
        form.saveFault.clear();
        return Command4(form);
    }
    askToSave(form);
    const int reply = form.heading;
    if (reply == answer::yes) {
        save(form); // if this fails, its notice stays: the drawing is lost
    } else if (reply == answer::no) {
        form.saveFault.clear();
    }
    if (reply == answer::yes || reply == answer::no) {
        Command4(form);
        form.heading = reply;
    }
}

void open(Form1& form)
{
    form.pencilTool = 0;
    if (form.penMoved != 1) {
        return notify(form, "Open works after the first arrow key");
    }
    askToSave(form);
    const bool yes = form.heading == answer::yes;
    if (form.heading == answer::cancel) {
        return;
    }
    if (yes) {
        save(form);
    }
    const std::optional<std::string> path = form.dialogs.openFile();
    if (path) {
        form.pictures.loadBackground(*path);
    }
    ++form.openedDrawings;
    setTitle(form, !path && !yes ? std::string(noFile) : withoutFolder(path.value_or("")));
}

void save(Form1& form)
{
    form.savedMark = 100; // now, because a failed or cancelled save counts, too
    const auto path = form.dialogs.saveFile(form.fileTitle, "JPEG", "JPEG Files ( *.jpeg)|*.JPEG");
    if (!path) {
        form.dialogs.messageBox("Unkown error while saving file ", Box::okOnly, productName);
        return;
    }
    try {
        form.pictures.saveImage(*path);
    } catch (const RuntimeError& error) {
        // A notice is enough, because the old file is still on the disk.
        form.saveFault = "Not saved: " + std::string(error.what());
        return notify(form, form.saveFault);
    }
    form.fileTitle = withoutFolder(*path);
    setTitle(form, form.fileTitle);
    form.saveFault.clear();
}

void copyDrawing(Form1& form)
{
    notify(form, form.pictures.copyInk() ? "Drawing copied as a picture" : "Nothing copied: the canvas is empty");
}

void print(Form1& form)
{
    form.printAnswer =
        form.dialogs.messageBox(" Do you want to print this form?", Box::yesNoCancelWarning, productName);
    if (form.printAnswer == answer::yes) {
        form.window.printForm();
    }
}

void exit_(Form1& form)
{
    askToSave(form);
    if (form.heading == answer::yes) {
        save(form);
        endf(form);
    } else if (form.heading == answer::no) {
        endf(form);
    }
}

void Command4(Form1& form)
{
    ++form.newDrawings;
    clearOutput(form);
    form.fileTitle.clear();
    form.surface.setBackColor(white);
    form.paperColor = white;
    form.surface.clear();
    form.surface.setForeColor(black);
    form.surface.setDrawWidth(2);
    form.window.hide({control::Label27, control::Shape1});
    for (const Name item : confirmItems) {
        form.window.setChecked(item, true);
    }
    load(form);
}

void endf(Form1& form)
{
    form.window.endProgram();
}

} // namespace schemlet
