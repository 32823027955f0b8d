// The holder of the host's application object and its services. What asks for them includes frame/host_services.h; this
// is for whoever ends the holder.
#pragma once

namespace zu::host {

// Releases what is held; the next request makes a new holder.
void destroyHolder();

} // namespace zu::host
