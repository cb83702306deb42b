#include "Orvo/c/values.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <new>
#include <span>

#include "Orvo/c/handle.h"
#include "Orvo/values/text.h"

namespace Orvo::C {
namespace {

// Of the first version; later ones only ever grow.
constexpr std::size_t kLeast = sizeof(orvo_value);

String stringOf(const orvo_value& value) {
    const auto& [text, length] = value.as.string;
    return length == 0 ? String() : fromUtf8({required(text), length});
}

IntegerArray arrayOf(const orvo_value& value) {
    const auto& [elements, count, lower, dimensions] = value.as.array;
    if (dimensions == 0) return {};
    if (dimensions != 1) throw badArgument();
    if (count == 0) return {lower, {}};
    return {lower, {required(elements), elements + count}};
}

Value valueOf(const orvo_value& value) {
    switch (value.type) {
        case ORVO_NONE:
            return {};
        case ORVO_BOOLEAN:
            return Boolean(value.as.boolean);
        case ORVO_INTEGER:
            return value.as.integer;
        case ORVO_LONG:
            return value.as.long_integer;
        case ORVO_NUMBER:
            return value.as.number;
        case ORVO_STRING:
            return stringOf(value);
        case ORVO_INTEGER_ARRAY:
            return arrayOf(value);
        default:
            throw badArgument();
    }
}

// Writes into C's value what each alternative has.
struct Lender {
    orvo_value& value;
    std::string& text;

    void operator()(std::monostate) const {}
    void operator()(Boolean truth) const { value.as.boolean = truth.raw(); }
    void operator()(Integer number) const { value.as.integer = number; }
    void operator()(Long number) const { value.as.long_integer = number; }
    void operator()(double number) const { value.as.number = number; }
    void operator()(const String& string) const {
        text = toUtf8(string);
        value.as.string = {text.data(), text.size()};
    }
    void operator()(const IntegerArray& array) const {
        const auto elements = array.elements();
        const bool isSized = array.dimensionCount() > 0;
        value.as.array = {elements.data(), elements.size(), isSized ? array.bounds().lower : 0,
                          isSized ? 1 : 0};
    }
};

// Freed by `orvo_clear`. A text ends with a NUL, which its length doesn't count.
template <class Element>
const Element* kept(const Element* first, std::size_t count) {
    auto* const copy = static_cast<Element*>(std::calloc(count + 1, sizeof(Element)));
    if (copy == nullptr) throw std::bad_alloc();
    std::copy_n(first, count, copy);
    return copy;
}

}  // namespace

std::vector<Value> valuesOf(const orvo_value* arguments, std::size_t count) {
    std::vector<Value> values;
    for (std::size_t i = 0; i < count; ++i) {
        const orvo_value& argument = *orvo_argument(required(arguments), i);
        if (arguments->size < kLeast || argument.size != arguments->size) throw badArgument();
        values.push_back(valueOf(argument));
    }
    return values;
}

orvo_value lent(const Value& value, std::string& text) {
    orvo_value result = ORVO_VALUE_INIT;
    result.type = static_cast<std::int32_t>(value.index());
    std::visit(Lender{result, text}, value);
    return result;
}

void checkRoom(const orvo_value& result) {
    if (result.size < kLeast) throw badArgument();
}

void give(const Value& value, orvo_value& result) {
    std::string text;
    orvo_value given = lent(value, text);
    auto& [elements, count, lower, dimensions] = given.as.array;
    if (given.type == ORVO_STRING) given.as.string.text = kept(text.c_str(), text.size());
    if (given.type == ORVO_INTEGER_ARRAY) elements = kept(elements, count);
    given.size = result.size;
    std::memcpy(&result, &given, kLeast);
}

}  // namespace Orvo::C

void orvo_clear(orvo_value* result) {
    if (result == nullptr) return;
    // The library's own copies. NOLINTBEGIN(cppcoreguidelines-pro-type-const-cast)
    if (result->type == ORVO_STRING) std::free(const_cast<char*>(result->as.string.text));
    if (result->type == ORVO_INTEGER_ARRAY)
        std::free(const_cast<std::int16_t*>(result->as.array.elements));
    // NOLINTEND(cppcoreguidelines-pro-type-const-cast)
    result->type = ORVO_NONE;
}

const orvo_value* orvo_argument(const orvo_value* arguments, std::size_t index) {
    const auto* const bytes = static_cast<const char*>(static_cast<const void*>(arguments));
    return static_cast<const orvo_value*>(
        static_cast<const void*>(bytes + index * arguments->size));
}
