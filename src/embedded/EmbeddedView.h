#pragma once

#include "embedded/EmbeddedSession.h"

#include <string>

namespace orvane::embedded {

/// The one view on the screen, which shows the opened document. It remembers what the screen shows now.
HostRef<HostView> makeView(const SessionRef& session);
/// Puts on the screen what it showed when `view` was made; a view of another host changes nothing.
void showAgain(EmbeddedSession& session, const HostRef<HostView>& view);
/// Puts the first named view of that name, of the opened document, on the screen; none changes nothing.
void showNamedView(EmbeddedSession& session, const std::u16string& name);

/// Empty for null.
HostRef<HostCamera> makeCamera(const SessionRef& session, const CameraRecord* camera);
/// The record that a camera stands for; null for none, and for a camera of another host.
const CameraRecord* cameraRecord(const HostRef<HostCamera>& camera);

} // namespace orvane::embedded
