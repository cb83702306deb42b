#pragma once

#include <cstdint>
#include <limits>
#include <vector>

#include "Fuzz/fuzz.h"
#include "Orvo/core/member_table.h"
#include "Orvo/core/value.h"
#include "Orvo/layout/layout.h"
#include "Orvo/layout/roles.h"
#include "Orvo/store/deed.h"
#include "Orvo/values/error.h"
#include "Orvo/values/text.h"

// What an input may stand for.
namespace Orvo::Fuzz {

inline String anyText(Bytes& bytes) {
    String text;
    for (std::size_t length = bytes.below(12); length > 0; --length) {
        text += bytes.maybe() ? bytes.number<char16_t>() : static_cast<char16_t>(bytes.below(128));
    }
    return text;
}

inline std::vector<Integer> anyElements(Bytes& bytes) {
    std::vector<Integer> elements(bytes.below(64));
    for (Integer& element : elements) element = bytes.number<Integer>();
    return elements;
}

inline IntegerArray::Bounds anyBounds(Bytes& bytes) {
    const auto lower = bytes.number<Long>();
    const auto upper = std::int64_t{lower} + static_cast<std::int64_t>(bytes.below(12)) - 1;
    using Limits = std::numeric_limits<Long>;
    return {lower,
            static_cast<Long>(std::clamp<std::int64_t>(upper, Limits::min(), Limits::max()))};
}

inline IntegerArray anyArray(Bytes& bytes) {
    try {
        if (bytes.maybe()) return {bytes.number<Long>(), anyElements(bytes)};
        std::vector<IntegerArray::Bounds> dimensions(bytes.below(4));
        for (auto& dimension : dimensions) dimension = anyBounds(bytes);
        return IntegerArray(dimensions);
    } catch (const Error&) {
        return {};
    }
}

/// Of a member's parameter, or of another type.
inline Value anyValue(Bytes& bytes, ValueType type) {
    switch (type) {
        case ValueType::none:
            return std::monostate();
        case ValueType::boolean:
            return Boolean(bytes.number<Integer>());
        case ValueType::integer:
            return bytes.maybe() ? bytes.number<Integer>() : static_cast<Integer>(bytes.below(6));
        case ValueType::longInteger:
            return bytes.number<Long>();
        case ValueType::number:
            return bytes.number<double>();
        case ValueType::string:
            return bytes.maybe() ? anyText(bytes) : plainText(bytes.number<double>());
        default:
            return anyArray(bytes);
    }
}

inline Value anyValue(Bytes& bytes) {
    return anyValue(bytes, static_cast<ValueType>(bytes.below(std::variant_size_v<Value>)));
}

/// What a member takes.
inline std::vector<Value> anyArguments(Bytes& bytes, const Member& member) {
    std::vector<Value> arguments;
    for (const Parameter& parameter : member.parameters()) {
        arguments.push_back(anyValue(bytes, parameter.type));
    }
    return arguments;
}

/// Nobody can touch a timer.
inline Widgets::WidgetId anyWidget(Bytes& bytes) {
    const auto widget = static_cast<Widgets::WidgetId>(bytes.below(Layout::kWidgetCount));
    return Layout::kindOf(widget) == Widgets::Kind::timer ? Widgets::WidgetId{0} : widget;
}

inline Runtime::Deed anyDeed(Bytes& bytes) {
    constexpr char16_t kOpensPrompts = 18;
    if (bytes.below(8) == 1) return Runtime::Deed::key(Layout::kCommon.log, kOpensPrompts);
    Runtime::Deed deed;
    deed.verb = static_cast<Runtime::Deed::Verb>(bytes.below(10));
    deed.widget = anyWidget(bytes);
    deed.button = static_cast<Runtime::MouseButton>(bytes.below(3));
    deed.number = bytes.number<Integer>();
    if (deed.verb == Runtime::Deed::Verb::key) deed.number &= 0xFFFF;
    if (deed.verb == Runtime::Deed::Verb::pick) deed.text = decimalText(deed.number & 0xFF);
    return deed;
}

}  // namespace Orvo::Fuzz
