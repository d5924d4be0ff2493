#pragma once

#include "host/HostObject.h"

namespace orvane {

/// The assembly interface of an assembly document.
class HostAssembly : public HostObject {};

} // namespace orvane
