#pragma once

#include "host/HostApplication.h"

/// The smallest host that gives something to see: one part is open in it, a plate of one face, with one
/// configuration in one display state. What a host has not to offer is answered with nothing.
orvane::HostRef<orvane::HostApplication> openPlateHost();
