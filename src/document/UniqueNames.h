#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <unordered_set>

namespace orvane {

/// Names that are all different: a name that is taken gets `-1`, `-2` and so on behind it, the first that is
/// free. The search goes on where the last one for the same name stopped, so that a thousand equal names
/// cost a thousand steps.
class UniqueNames {
public:
    std::string claim(const std::string& name) {
        if (taken_.insert(name).second) {
            return name;
        }
        std::int32_t& counter = counters_[name];
        std::string numbered;
        do {
            numbered = name + "-" + std::to_string(++counter);
        } while (!taken_.insert(numbered).second);
        return numbered;
    }

private:
    std::unordered_set<std::string> taken_;
    std::unordered_map<std::string, std::int32_t> counters_; ///< the last number tried, by name
};

} // namespace orvane
