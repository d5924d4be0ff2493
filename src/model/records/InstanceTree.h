#pragma once

#include "model/records/ModelRecords.h"

#include <string_view>
#include <unordered_map>

namespace orvane {

/// Components of a document once all sub-assemblies are instanced.
struct TreeSize {
    std::uint64_t components = 0; ///< counted up to `kMostComponents` + 1
    std::size_t levels = 0;
};

inline constexpr std::uint64_t kMostComponents = 2'000'000;
/// Whoever walks the tree may call itself once for each level.
inline constexpr std::size_t kMostComponentLevels = 256;

/// The children that a component has in the tree: its own, or those of the assembly that it shows; null for
/// none.
const std::vector<ComponentRecord>* childrenOf(const ComponentRecord& component);

/// The sizes of documents' trees, without building any: each document is counted once, so that the cost is
/// linear in the records. Documents must be read wholly and must not refer to themselves.
class TreeSizes {
public:
    TreeSize of(const ModelDocument& document);

private:
    std::unordered_map<const ModelDocument*, TreeSize> known_;
};

/// Finds components by full name, also through instanced sub-assemblies.
class ComponentNames {
public:
    /// Whether `document` has at least one component of this full name.
    bool contains(const ModelDocument& document, std::u16string_view fullName);

private:
    using List = std::vector<ComponentRecord>;
    using Index = std::unordered_multimap<std::u16string_view, const ComponentRecord*>;

    const Index& indexOf(const List& list);

    std::unordered_map<const List*, Index> indexes_;
};

} // namespace orvane
