#include "shell/files.h"

#include "canvas/notice.h"
#include "circuit/output_window.h"
#include "platform/runtime_error.h"
#include "shell/confirmations.h"

#include <filesystem>

namespace {

void askToSave(Form1& form)
{
    form.heading = form.dialogs.messageBox("Do you want to save changes?", Box::yesNoCancelWarning, productName);
}

/// Also while it is still a notice.
void forgetSaveFault(Form1& form)
{
    form.saveFault.clear();
    form.notice.clear();
}

std::string withoutFolder(std::string_view path)
{
    return std::filesystem::path(path).filename().string();
}

} // namespace

void new_(Form1& form)
{
    form.penMoved = 0;
    if (form.savedMark != 0) {
        forgetSaveFault(form);
        return Command4(form);
    }
    askToSave(form);
    const int reply = form.heading;
    if (reply == answer::yes) {
        save(form); // if it fails, that is said: the drawing is lost
    } else if (reply == answer::no) {
        forgetSaveFault(form);
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
    const std::string path = form.dialogs.openFile();
    if (!path.empty()) {
        form.pictures.loadBackground(path);
    }
    setTitle(form, path.empty() && !yes ? std::string(noFile) : withoutFolder(path));
}

void save(Form1& form)
{
    form.savedMark = 100; // first of all: a save that fails or is cancelled counts too
    try {
        const std::string path = form.dialogs.saveFile(form.fileTitle, "JPEG", "JPEG Files ( *.jpeg)|*.JPEG");
        form.pictures.saveImage(path);
        form.fileTitle = withoutFolder(path);
        setTitle(form, form.fileTitle);
        forgetSaveFault(form);
    } catch (const RuntimeError& error) {
        // Any other failure brings no box; what was on the disk is still there.
        if (error.fault == Fault::dialogCancelled) {
            form.dialogs.messageBox("Unkown error while saving file ", Box::okOnly, productName);
        } else {
            form.saveFault = "Not saved: " + std::string(error.what());
            notify(form, form.saveFault);
        }
    }
}

void print(Form1& form)
{
    form.printAnswer =
        form.dialogs.messageBox(" Do you want to print this form?", Box::yesNoCancelWarning, productName);
    if (form.printAnswer == answer::yes) {
        form.controls.printForm();
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
    clearOutput(form);
    form.fileTitle.clear();
    form.surface.setBackColor(white);
    form.paperColor = white;
    form.surface.clear();
    form.surface.setForeColor(black);
    form.surface.setDrawWidth(2);
    form.controls.hide({control::Label27, control::Shape1});
    for (const Name item : confirmItems) {
        form.controls.setChecked(item, true);
    }
    load(form);
}

void endf(Form1& form)
{
    form.controls.endProgram();
}
