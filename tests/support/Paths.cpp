#include "support/Paths.h"

namespace orvane {

std::string sourceFolder() {
    return ORVANE_SOURCE_DIR;
}

std::string commandPath() {
    return ORVANE_COMMAND;
}

} // namespace orvane
