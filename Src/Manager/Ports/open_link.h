#pragma once

#include "Manager/Link/byte_stream.h"

namespace Orvo::Manager {

/// An OpenStream for what this machine has: serial devices and pseudo-terminals, which no other
/// program gets at meanwhile, local stream sockets and pipes. Needs the application's event loop.
std::unique_ptr<ByteStream> openLink(const LinkAddress& address);

}  // namespace Orvo::Manager
