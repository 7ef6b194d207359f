#pragma once

/// Ends the process in time once it has been asked to quit, whatever it waits for: a display, a bus, another
/// program.
namespace velmora::QuitDeadline {

/// Prepares the timer. Call before start().
void install();
/// From now on the process ends with exit code 0 after 0.7 s. Async-signal-safe.
void start();
/// The process may take longer again.
void stop();

} // namespace velmora::QuitDeadline
