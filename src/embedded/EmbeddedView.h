#pragma once

#include "embedded/EmbeddedSession.h"

#include <string>

namespace orvane::embedded {

/// The one view on the screen, which shows the opened document.
HostRef<HostView> makeView(const SessionRef& session);
/// Puts the first named view of that name, of the opened document, on the screen; none changes nothing.
void showNamedView(EmbeddedSession& session, const std::u16string& name);

/// Empty for null.
HostRef<HostCamera> makeCamera(const SessionRef& session, const CameraRecord* camera);
/// The record that a camera stands for; null for none, and for a camera of another host.
const CameraRecord* cameraRecord(const HostRef<HostCamera>& camera);

} // namespace orvane::embedded
