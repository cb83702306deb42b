#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <string_view>
#include <tuple>
#include <utility>

#include "Orvo/core/interface.h"
#include "Orvo/core/value.h"
#include "Orvo/values/error.h"

namespace Orvo {

enum class MemberKind : std::uint8_t { method, get, let };

enum class Passing : std::uint8_t { byReference, byValue };

struct Parameter {
    std::string_view name;
    ValueType type = ValueType::none;
    Passing passing = Passing::byReference;
};

/// One member of the panel. A let's last parameter is the new value.
struct Member {
    int number = 0;  ///< in interface order, from 1
    std::string_view name;
    MemberKind kind = MemberKind::method;
    Long dispatchId = 0;
    std::array<Parameter, 2> parameterSlots{};
    std::size_t parameterCount = 0;
    ValueType result = ValueType::none;
    /// Calls the member, with the arguments converted to the types of its parameters, see
    /// `convert`. Error 450 when their number is another.
    Value (*call)(MarvaneAssistantInterface& panel, std::span<const Value> arguments) = nullptr;

    [[nodiscard]] constexpr std::span<const Parameter> parameters() const {
        return std::span(parameterSlots).first(parameterCount);
    }
};

namespace Detail {

template <class Function>
struct Signature;

template <class Class, class Result, class... Arguments>
struct Signature<Result (Class::*)(Arguments...)> {
    using Returned = Result;
    template <std::size_t kIndex>
    using Argument = std::remove_cvref_t<std::tuple_element_t<kIndex, std::tuple<Arguments...>>>;
    static constexpr std::size_t kCount = sizeof...(Arguments);
    static constexpr std::array<ValueType, kCount> kTypes{valueTypeOf<Arguments>()...};
};

/// Whether a row's parameters are those of the function behind it.
template <class Function>
consteval bool fits(std::initializer_list<Parameter> parameters) {
    using Types = Signature<Function>;
    if (parameters.size() != Types::kCount) return false;
    for (std::size_t i = 0; i < Types::kCount; ++i) {
        if (std::data(parameters)[i].type != Types::kTypes[i]) return false;
    }
    return true;
}

template <std::size_t kSlots>
consteval std::array<Parameter, kSlots> padded(std::initializer_list<Parameter> parameters) {
    std::array<Parameter, kSlots> filled{};
    for (std::size_t i = 0; i < parameters.size(); ++i) filled[i] = std::data(parameters)[i];
    return filled;
}

// Values that have the parameters' types already are passed on as they are, without copies.
template <auto kFunction>
Value callMember(MarvaneAssistantInterface& panel, std::span<const Value> values) {
    using Types = Signature<decltype(kFunction)>;
    if (values.size() != Types::kCount) throw Errors::wrongArgumentCount();
    return [&]<std::size_t... kIndex>(std::index_sequence<kIndex...>)->Value {
        if (!((typeOf(values[kIndex]) == Types::kTypes[kIndex]) && ...)) {
            // Braces: the first that can't be converted is the one that is told of.
            const std::array<Value, Types::kCount> converted{
                convert(values[kIndex], Types::kTypes[kIndex])...};
            return callMember<kFunction>(panel, converted);
        }
        const auto call = [&] {
            return (panel.*kFunction)(
                std::get<typename Types::template Argument<kIndex>>(values[kIndex])...);
        };
        if constexpr (std::is_void_v<typename Types::Returned>) {
            call();
            return std::monostate();
        } else {
            return call();
        }
    }
    (std::make_index_sequence<Types::kCount>());
}

template <auto kFunction>
consteval Member member(int number, std::string_view name, MemberKind kind, Long dispatchId,
                        std::initializer_list<Parameter> parameters, ValueType result) {
    if (!fits<decltype(kFunction)>(parameters)) throw "the parameters are not the function's";
    if (result != valueTypeOf<typename Signature<decltype(kFunction)>::Returned>()) {
        throw "the result is not the function's";
    }
    return {.number = number,
            .name = name,
            .kind = kind,
            .dispatchId = dispatchId,
            .parameterSlots = padded<2>(parameters),
            .parameterCount = parameters.size(),
            .result = result,
            .call = &callMember<kFunction>};
}

// Pick one of a property's two overloads.
template <class Result, class... Index>
using Get = Result (MarvaneAssistantInterface::*)(Index...);
template <class... IndexAndValue>
using Let = void (MarvaneAssistantInterface::*)(IndexAndValue...);

consteval auto memberTable() {
    using I = MarvaneAssistantInterface;
    using enum MemberKind;
    using enum ValueType;
    using enum Passing;
    // clang-format off
    return std::to_array<Member>({
        member<&I::TrimStr>                      ( 1, "TrimStr",                method, 0x60030015, {{"strName", string}}, string),
        member<&I::LPSTRtoSTRING>                ( 2, "LPSTRtoSTRING",          method, 0x60030016, {{"lngPointer", longInteger, byValue}}, string),
        member<&I::GetAvailablePorts>            ( 3, "GetAvailablePorts",      method, 0x60030017, {{"ServerName", string}}, longInteger),
        member<&I::CancellaTesto>                ( 4, "CancellaTesto",          method, 0x60030018, {}, none),
        member<&I::AggiugiTesto>                 ( 5, "AggiugiTesto",           method, 0x60030019, {{"strTesto", string}}, none),
        member<Let<Integer, Boolean>(&I::chkTest)>( 6, "chkTest",               let,    0x68030014, {{"Ncheck", integer}, {"blnValue", boolean}}, none),
        member<Get<Boolean, Integer>(&I::chkTest)>( 7, "chkTest",               get,    0x68030014, {{"Ncheck", integer}}, boolean),
        member<&I::ClearMains>                   ( 8, "ClearMains",             method, 0x6003001A, {}, none),
        member<&I::ClearTest>                    ( 9, "ClearTest",              method, 0x6003001B, {}, none),
        member<&I::Connected>                    (10, "Connected",              let,    0x68030013, {{"blnValue", boolean}}, none),
        member<&I::Protection>                   (11, "Protection",             let,    0x68030012, {{"intChannel", integer}, {"blnValue", boolean}}, none),
        member<&I::Signal>                       (12, "Signal",                 let,    0x68030011, {{"intChannel", integer}, {"blnValue", boolean}}, none),
        member<&I::AbilitaSlave>                 (13, "AbilitaSlave",           method, 0x6003001C, {{"blnAbilita", boolean}}, none),
        member<Get<Integer>(&I::IdDevice)>       (14, "IdDevice",               get,    0x68030010, {}, integer),
        member<Let<Integer>(&I::IdDevice)>       (15, "IdDevice",               let,    0x68030010, {{"intIdDevice", integer}}, none),
        member<&I::VPPower>                      (16, "VPPower",                let,    0x6803000F, {{"intChannel", integer}, {"intValue", integer}}, none),
        member<&I::VPAux>                        (17, "VPAux",                  let,    0x6803000E, {{"intChannel", integer}, {"intValue", integer}}, none),
        member<&I::Clock>                        (18, "Clock",                  let,    0x6803000D, {{"intChannel", integer}, {"blnValue", boolean}}, none),
        member<&I::Ready>                        (19, "Ready",                  let,    0x6803000C, {{"intChannel", integer}, {"blnValue", boolean}}, none),
        member<&I::VNPower>                      (20, "VNPower",                let,    0x6803000B, {{"intChannel", integer}, {"intValue", integer}}, none),
        member<&I::VNAux>                        (21, "VNAux",                  let,    0x6803000A, {{"intChannel", integer}, {"intValue", integer}}, none),
        member<Get<Boolean>(&I::PowerOn)>        (22, "PowerOn",                get,    0x68030009, {}, boolean),
        member<&I::MainPresence>                 (23, "MainPresence",           let,    0x68030008, {{"Status", boolean}}, none),
        member<Let<Boolean>(&I::PowerOn)>        (24, "PowerOn",                let,    0x68030009, {{"Status", boolean}}, none),
        member<&I::Volume>                       (25, "Volume",                 let,    0x68030007, {{"intChannel", integer}, {"intValue", integer}}, none),
        member<&I::VolumeSlider>                 (26, "VolumeSlider",           let,    0x68030006, {{"intChannel", integer}, {"intValue", integer}}, none),
        member<&I::VolumeSliderButtonDown>       (27, "VolumeSliderButtonDown", get,    0x68030005, {{"intChannel", integer}}, boolean),
        member<&I::Temperature>                  (28, "Temperature",            let,    0x68030004, {{"intChannel", integer}, {"intValue", integer}}, none),
        member<&I::TimerVirtualTemp12>           (29, "TimerVirtualTemp12",     let,    0x68030003, {{"bln", boolean}}, none),
        member<&I::TimerVirtualTemp34>           (30, "TimerVirtualTemp34",     let,    0x68030002, {{"bln", boolean}}, none),
        member<&I::DisegnaAssi>                  (31, "DisegnaAssi",            method, 0x60030042, {{"intNCanale", integer}}, none),
        member<&I::DisegnaFormaDOnda>            (32, "DisegnaFormaDOnda",      method, 0x60030043, {{"intNumCanale", integer}, {"arrSamples", array}}, none),
        member<Let<Integer, Boolean>(&I::Mute)>  (33, "Mute",                   let,    0x68030001, {{"intChannel", integer}, {"blnValue", boolean}}, none),
        member<Get<Boolean, Integer>(&I::Mute)>  (34, "Mute",                   get,    0x68030001, {{"intChannel", integer}}, boolean),
        member<Let<Boolean>(&I::ReadOnly)>       (35, "ReadOnly",               let,    0x68030000, {{"blnValue", boolean}}, none),
        member<Get<Boolean>(&I::ReadOnly)>       (36, "ReadOnly",               get,    0x68030000, {}, boolean),
    });
    // clang-format on
}

}  // namespace Detail

/// All members, in interface order.
inline constexpr auto kMembers = Detail::memberTable();

/// The member of a name that takes these arguments; one that the table doesn't have doesn't
/// compile.
template <class... Arguments>
consteval const Member& memberNamed(std::string_view name) {
    constexpr std::array<ValueType, sizeof...(Arguments)> kTypes{valueTypeOf<Arguments>()...};
    for (const Member& member : kMembers) {
        const bool takesThem =
            std::ranges::equal(member.parameters(), kTypes, {}, &Parameter::type);
        if (member.name == name && takesThem) return member;
    }
    throw "no member of this name takes these arguments";
}

}  // namespace Orvo
