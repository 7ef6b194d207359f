#pragma once

/// Ends the process in time once it has been asked to quit, whatever it waits for: a display, a bus, another
/// program.
namespace velmora::QuitDeadline {

/// Prepares the timer. Call before start().
void install();
/// From now on the process ends with exit code 0 after 0.7 s. Only the first call counts. Async-signal-safe.
void start();
/// Starts the time if need be, and stops it until resume().
void pause();
void resume();

} // namespace velmora::QuitDeadline
