#pragma once

namespace schemlet {

/// Makes SIGTERM, SIGINT and SIGHUP end the main loop with exit status 0, even while a dialog is open. A running
/// handler finishes first. Call once, after creating the application object.
void endOnSignals();

} // namespace schemlet
