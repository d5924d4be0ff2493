#pragma once

#include <string>

namespace orvane {

/// The folder of the sources, without a separator at its end.
std::string sourceFolder();
/// The command that was built with the tests.
std::string commandPath();

} // namespace orvane
