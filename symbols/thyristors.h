#pragma once

#include "canvas/canvas_state.h"

// Thyristors and their relatives hanging down from the pen, whatever the heading. The one family without a colour of
// its own: they are drawn in whatever colour is current. The marker stays.
void SCR(Form1& form);
void TRIAC(Form1& form);
void DIAC(Form1& form);
void UJT(Form1& form);
