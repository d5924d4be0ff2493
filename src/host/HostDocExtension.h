#pragma once

#include "host/HostObject.h"

namespace orvane {

/// The extension object of a document.
class HostDocExtension : public HostObject {};

} // namespace orvane
