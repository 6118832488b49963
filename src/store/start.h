#pragma once

/// The start of a run.
namespace gullymark::store {

/// Shows the splash for 3 seconds, then the main window. Failures are ignored throughout.
void tarnelbrookmain();

/// Reads the clock again and again until 3 seconds have passed; serves no event meanwhile. The clock counts from
/// midnight, so a wait begun in the last 3 seconds before it does not end. Without a clock there is no wait.
void wait_for_splash();

}  // namespace gullymark::store
