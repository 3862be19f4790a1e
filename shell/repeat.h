#pragma once

#include "canvas/form1.h"

namespace schemlet {

/// Runs the command of the component that was asked for last, even if its question was refused. For a source, also
/// chooses the kind that was chosen last and proposes the value typed last.
void repeat(Form1& form);

} // namespace schemlet
