#pragma once

#include "platform/name.h"

namespace schemlet {

/// The controls on and around the canvas, by their names in the form.
namespace control {
inline constexpr Name Picture1 = "Picture1"; ///< the pen marker
inline constexpr Name Shape1 = "Shape1";     ///< the eraser's outline
inline constexpr Name Label27 = "Label27";   ///< says that erase mode is on
inline constexpr Name Canvas = "Canvas";
inline constexpr Name Toolbar1 = "Toolbar1";
inline constexpr Name statusBar = "statusBar";
inline constexpr Name Frame2 = "Frame2"; ///< the toolbox
inline constexpr Name Label1 = "Label1"; ///< its handle
inline constexpr Name rc = "rc";         ///< the right-click menu
inline constexpr Name sb = "sb";         ///< panel 1 of the status bar, the hint
inline constexpr Name sbPen = "sbPen";
inline constexpr Name sbHeading = "sbHeading";
inline constexpr Name sbTool = "sbTool";
inline constexpr Name sbErase = "sbErase";
inline constexpr Name sbJumpers = "sbJumpers";
inline constexpr Name sbNotice = "sbNotice";       ///< visible only while it has a text
inline constexpr Name sbPointer = "sbPointer";     ///< visible only while the mouse is over the canvas
inline constexpr Name sbOffCanvas = "sbOffCanvas"; ///< visible only while the pen is off the canvas
inline constexpr Name undo = "undo";               ///< a button of the status bar, as redo and copy are
inline constexpr Name redo = "redo";
inline constexpr Name copy = "copy";
inline constexpr Name statusTimer = "statusTimer";
inline constexpr Name noticeTimer = "noticeTimer";
inline constexpr Name Timer1 = "Timer1"; ///< shows the help window once at start
inline constexpr Name Timer2 = "Timer2"; ///< blinks the pen marker

// The panel of supplies and batteries
inline constexpr Name panel = "panel"; ///< the frame around all of it
inline constexpr Name sup = "sup";
inline constexpr Name bat = "bat";
inline constexpr Name Label11 = "Label11";   ///< asks for the kind of supply
inline constexpr Name Label13 = "Label13";   ///< asks for the kind of battery
inline constexpr Name Label12 = "Label12";   ///< asks for the value, in sup
inline constexpr Name Label28 = "Label28";   ///< asks for the value, in bat
inline constexpr Name Option1 = "Option1";   ///< none of the kinds; it keeps its switches but is never visible
inline constexpr Name Option2 = "Option2";   ///< current supply
inline constexpr Name Option3 = "Option3";   ///< voltage supply
inline constexpr Name Option4 = "Option4";   ///< positive battery
inline constexpr Name Option5 = "Option5";   ///< negative battery
inline constexpr Name Text11 = "Text11";     ///< the value
inline constexpr Name Command3 = "Command3"; ///< draws
inline constexpr Name Command7 = "Command7"; ///< cancels, in bat
inline constexpr Name Command8 = "Command8"; ///< cancels, in sup
} // namespace control

/// The menu items that other code than the menu's refers to.
namespace item {
inline constexpr Name lll = "lll"; ///< View > ToolBar
inline constexpr Name sss = "sss"; ///< View > StatusBar
inline constexpr Name toolbox = "toolbox";
inline constexpr Name jj = "jj"; ///< Enable > Automatic Jumper
} // namespace item

} // namespace schemlet
