#pragma once

namespace schemlet {

/// Lets SIGTERM, SIGINT and SIGHUP end the main loop with exit status 0, wherever it is; what runs at that moment runs
/// to its end. Call once, when the application object exists.
void endOnSignals();

} // namespace schemlet
