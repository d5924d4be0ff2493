#pragma once

#include "host/HostApplication.h"
#include "model/records/ModelRecords.h"

#include <string>

namespace orvane {

/// A host in which `model` is open, its first document in front. Every host operation is answered from the
/// records. `hostInstallFolder` is the folder of the host's library, as `toHostPath` gives it; empty: there
/// is no library.
HostRef<HostApplication> openEmbeddedHost(Model model, std::u16string hostInstallFolder = {});

} // namespace orvane
