#pragma once

#include "embedded/ModelRecords.h"
#include "host/HostApplication.h"

#include <cstdint>

namespace orvane {

/// The revision that the embedded host answers.
inline constexpr std::int32_t kEmbeddedHostRevision = 28;

/// A host in which `model` is open, its first document in front. Every host operation is answered from the
/// records.
HostRef<HostApplication> openEmbeddedHost(Model model);

} // namespace orvane
