#pragma once

#include <cstdint>
#include <string>

#include "Orvo/export.h"
#include "Orvo/values/types.h"

namespace Orvo {

/// The decimal text of a whole number: no leading blank, a leading "-" for a negative one.
ORVO_EXPORT String decimalText(std::int64_t value);

/// The shortest decimal text that reads back as the same number, with a point in every locale and
/// without an exponent from 1e-4 up to 1e15.
ORVO_EXPORT String plainText(double value);

/// The number that a text stands for: blanks around it, a sign, decimal digits with an optional
/// fraction (a point in every locale) and exponent.
/// Error 13 when it is no number, error 6 when it leaves the double range.
ORVO_EXPORT double numericValue(StringView text);

/// The two text encodings. A lone surrogate becomes U+FFFD in UTF-8, an ill-formed UTF-8 sequence
/// becomes U+FFFD in UTF-16.
ORVO_EXPORT std::string toUtf8(StringView text);
ORVO_EXPORT String fromUtf8(std::string_view text);

}  // namespace Orvo
