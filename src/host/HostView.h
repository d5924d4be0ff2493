#pragma once

#include "host/HostObject.h"

namespace orvane {

/// A view of the model on the screen.
class HostView : public HostObject {};

} // namespace orvane
