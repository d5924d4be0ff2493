#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace orvane {

/// Named 32-bit numbers that are kept for one user from run to run.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;

    /// Nothing where there is no such number, or it cannot be read.
    virtual std::optional<std::uint32_t> read(std::string_view name) = 0;
    /// A failure is silent.
    virtual void write(std::string_view name, std::uint32_t value) = 0;
};

} // namespace orvane
