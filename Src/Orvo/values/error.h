#pragma once

#include <stdexcept>
#include <string>

#include "Orvo/export.h"
#include "Orvo/values/types.h"

namespace Orvo {

/// A run-time error as it reaches a caller: a number and a description (ASCII).
///
/// Numbers below 1000 are those of the component model's run time.
class ORVO_EXPORT Error : public std::runtime_error {
public:
    Error(Long number, const std::string& description)
        : std::runtime_error(description), number_(number) {}

    [[nodiscard]] Long number() const { return number_; }
    [[nodiscard]] std::string description() const { return what(); }

private:
    Long number_;
};

namespace Errors {

inline Error invalidCall() { return {5, "Invalid procedure call or argument"}; }
inline Error overflow() { return {6, "Overflow"}; }
// Made while there is memory: a copy takes none.
inline const Error kOutOfMemory{7, "Out of memory"};
inline Error outOfMemory() { return kOutOfMemory; }
inline Error subscriptOutOfRange() { return {9, "Subscript out of range"}; }
inline Error typeMismatch() { return {13, "Type mismatch"}; }
inline Error interrupted() { return {18, "User interrupt occurred"}; }
inline Error permissionDenied() { return {70, "Permission denied"}; }
inline Error setNotSupported() { return {383, "Set not supported (read-only property)"}; }
inline Error getNotSupported() { return {394, "Get not supported (write-only property)"}; }
inline Error noSuchMember() { return {438, "Object doesn't support this property or method"}; }
inline Error wrongArgumentCount() {
    return {450, "Wrong number of arguments or invalid property assignment"};
}

/// A missing element of a widget array.
inline Error noSuchElement(Integer index) {
    return {340, "Control array element '" + std::to_string(index) + "' doesn't exist"};
}

/// A call from another thread than the panel's.
inline Error wrongThread() {
    return {1001, "The panel may be called only from the thread that created it"};
}

/// A host's handler of an event let an exception of its own escape.
inline Error hostFailure(const std::string& what) { return {1003, "Host handler failed: " + what}; }

}  // namespace Errors
}  // namespace Orvo
