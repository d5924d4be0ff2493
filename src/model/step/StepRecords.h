#pragma once

#include "model/records/ModelRecords.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// What a STEP file holds, as plain records that pass from the processes that run the kernel to the one that
/// wants the model. Links are positions.
namespace orvane::step {

/// A colour as the host has it: red in the lowest byte.
struct Look {
    std::uint32_t color = 0;
    double transparency = 0;

    bool operator==(const Look&) const = default;
};

/// Stands in a path for an instance that is nowhere.
inline constexpr std::uint32_t kNoInstance = UINT32_MAX;

/// A colour of one instance, or of one below it: the path leads from the outer instance to the painted one.
struct InstanceColor {
    std::vector<std::uint32_t> path;
    Look look;
};

/// A product placed in another one, or at the top of the file.
struct StepInstance {
    std::uint32_t product = 0;
    std::u16string name;      ///< its own, or that of its product
    bool isReference = false; ///< else it is a product that stands at the top of the file as it is
    Placement placement = kIdentityPlacement;
    bool isHidden = false;
    std::optional<Look> look;
    std::vector<InstanceColor> colors; ///< of what begins with this instance
};

struct StepProduct {
    std::u16string name;
    bool isAssembly = false;
    std::vector<std::uint32_t> instances;    ///< in an assembly
    std::optional<std::string> externalFile; ///< that holds its shape
    std::optional<std::uint32_t> part;       ///< that is its shape
};

/// The products of a file and how they are made of each other.
struct StepTree {
    std::vector<StepProduct> products;
    std::vector<StepInstance> instances;
    std::vector<std::uint32_t> roots; ///< instances that nothing else holds
    std::uint32_t partCount = 0;
    std::vector<std::string> warnings; ///< of the file as a whole
};

/// The shape of one product.
struct StepPart {
    std::vector<BodyRecord> bodies;
    std::vector<AppearanceRecord> appearances; ///< each with what it is applied to, and nothing but a look
    std::vector<std::string> warnings;         ///< what follows "PART: "
    bool hasShape = true;                      ///< whether the file gave anything
};

} // namespace orvane::step
