#pragma once

#include "Orvo/layout/roles.h"

// The tests speak of many widgets.
namespace Orvo {

using Layout::channel;
using Layout::kCommon;
using Layout::kTabs;
using Layout::pair;

}  // namespace Orvo
