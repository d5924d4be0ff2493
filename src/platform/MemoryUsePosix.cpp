#include "platform/MemoryUse.h"

#include <fstream>
#include <string>
#include <unistd.h>

namespace orvane::platform {

std::int64_t memoryUse(std::int64_t process) {
    std::ifstream rollup("/proc/" + std::to_string(process) + "/smaps_rollup");
    std::string word;
    while (rollup >> word) {
        std::int64_t kibibytes = 0;
        if (word == "Pss:" && rollup >> kibibytes) {
            return kibibytes * 1024;
        }
    }
    return 0;
}

std::int64_t memoryUse() {
    return memoryUse(getpid());
}

} // namespace orvane::platform
