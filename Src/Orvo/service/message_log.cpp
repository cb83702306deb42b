#include "Orvo/service/message_log.h"

#include "Orvo/layout/roles.h"

namespace Orvo {

void MessageLog::add(const String& line) { widgets_[Layout::kCommon.log].addItem(line); }

void MessageLog::clear() { widgets_[Layout::kCommon.log].clear(); }

}  // namespace Orvo
