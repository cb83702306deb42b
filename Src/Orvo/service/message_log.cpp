#include "Orvo/service/message_log.h"

#include "Orvo/layout/roles.h"

namespace Orvo {
namespace {

constexpr Widgets::ListRef kLog = Layout::kCommon.log;

}  // namespace

void MessageLog::add(const String& line) { widgets_[kLog].addItem(line); }

void MessageLog::clear() { widgets_[kLog].clear(); }

}  // namespace Orvo
