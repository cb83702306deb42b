#pragma once

#include "Manager/Link/byte_stream.h"

namespace Orvo::Manager {

/// An OpenStream for a pipe in the file system, which brings bytes, and takes and drops all. As
/// long as nobody has written to it there are none.
std::unique_ptr<ByteStream> openPipe(const LinkAddress& address);

}  // namespace Orvo::Manager
