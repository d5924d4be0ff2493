#pragma once

#include <Interface_InterfaceModel.hxx>

#include <string>

namespace orvane::step {

/// The first solid or shell of triangles (AP242) that this version of the kernel passed over, as
/// "tessellated geometry (#12 TESSELLATED_SOLID), ..." for a message; empty where there is none. The kernel
/// reads them from 7.7 on.
std::string findUnreadTessellation(const Handle(Interface_InterfaceModel) & model);

} // namespace orvane::step
