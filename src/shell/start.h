#pragma once

/// The windows of the program, built once.
namespace gullymark::shell {

/// Builds every window, still hidden, and fills the tables through which the logic reaches them. From here on the
/// logic can start. A window whose drawing does not fit the logic throws std::logic_error.
void build_windows();

/// Destroys the windows again, for a test.
void destroy_windows();

}  // namespace gullymark::shell
