#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string_view>

#include "Orvo/layout/layout.h"

// What the widgets are for: `channel(1).muteLamp`. Whoever wants a widget asks for its role here; a
// name that the layout doesn't have, or has with another kind, doesn't compile.
namespace Orvo::Layout {

/// A number on digits, the highest first.
struct Readout {
    std::optional<Widgets::LabelRef> sign{};  ///< a temperature has none, a rail's is fixed
    std::array<Widgets::DigitRef, 3> places{};
    std::size_t width = places.size();

    [[nodiscard]] constexpr auto digits() const { return std::span(places).first(width); }
};

/// An input of a channel in the routing diagram.
struct Input {
    Widgets::OptionRef option;
    Widgets::LineArrayRef segments;  ///< five
    Widgets::LineRef selector;
};

namespace Internal {

// Becomes a reference of the kind that the role asks for.
struct Named {
    std::string_view name;
    int distance = 0;  // from the widget of this name

    // NOLINTBEGIN(google-explicit-constructor)
    template <Kind kKind>
    constexpr operator Widgets::Ref<kKind>() const {
        const auto id = static_cast<WidgetId>(findWidget(name).value() + distance);
        if (describe(id).style.kind != kKind) throw "the widget is of another kind";
        return {id};
    }
    template <Kind kKind>
    constexpr operator Widgets::ArrayRef<kKind>() const {
        Widgets::ArrayRef<kKind> array;
        for (const Widget& widget : kWidgets) {
            if (widget.name.substr(0, widget.name.find('(')) != name) continue;
            const auto index = static_cast<std::size_t>(widget.name[name.size() + 1] - '0');
            array.ids[index] = Widgets::Ref<kKind>(Named{widget.name});
            ++array.count;
        }
        if (array.count == 0) throw "no widget array of this name";
        return array;
    }
    // NOLINTEND(google-explicit-constructor)
};

// Finds widgets by the names of their twins in the first of several parts that are laid out alike.
struct Part {
    constexpr Part(std::string_view first, std::string_view part)
        : distance(findWidget(part).value() - findWidget(first).value()) {}

    constexpr Named operator()(std::string_view twin) const { return {twin, distance}; }

    template <class... Digits>
    [[nodiscard]] constexpr Readout readout(std::string_view sign, Digits... digits) const {
        return {Widgets::LabelRef((*this)(sign)), {(*this)(digits)...}, sizeof...(digits)};
    }

    int distance;
};

// The parts of a pair, and of a channel, from 0.
struct PairParts {
    constexpr explicit PairParts(std::size_t pair)
        : its(kPairWidgets[0].pair12, pair == 0 ? kPairWidgets[0].pair12 : kPairWidgets[0].pair34),
          power(kRailFrames[0], kRailFrames[2 * pair]),
          aux(kRailFrames[1], kRailFrames[2 * pair + 1]) {}

    Part its, power, aux;
};

struct ChannelParts : PairParts {
    constexpr explicit ChannelParts(std::size_t channel)
        : PairParts(channel / 2), index(channel), block(kVolumeFrames[0], kVolumeFrames[channel]) {}

    [[nodiscard]] constexpr Named either(std::string_view upper, std::string_view lower) const {
        return its(index % 2 == 0 ? upper : lower);
    }

    std::size_t index;
    Part block;
};

constexpr Named the(std::string_view name) { return {name}; }

}  // namespace Internal

// clang-format off

/// What stands for the whole amplifier, on the "Common" tab.
struct Common {
    Widgets::Ref<Kind::image> background  = Internal::the("Image1");
    Widgets::LabelRef title               = Internal::the("Label59");
    Widgets::ComboRef amplifierIds        = Internal::the("Combo1");
    Widgets::ComboRef serialPorts         = Internal::the("cmbSerialPort");
    Widgets::ShapeRef linkLamp            = Internal::the("shpConnected");
    Widgets::ShapeRef powerLamp           = Internal::the("shpOnOff");
    Widgets::ShapeRef muteLamp            = Internal::the("Shape34");
    Widgets::ShapeRef protectionLamp      = Internal::the("Shape28");
    Widgets::ListRef log                  = Internal::the("List1");
    Widgets::LabelArrayRef testResults    = Internal::the("lblTestResult");  ///< six
    Widgets::ButtonRef powerButton        = Internal::the("cmdOnOff");
    Widgets::ButtonRef muteButton         = Internal::the("Command17");
    Widgets::ButtonRef internalDataButton = Internal::the("cmdReadInData");
    Widgets::ButtonRef resetLogButton     = Internal::the("Command1");
};

struct Pair : private Internal::PairParts {
    using PairParts::PairParts;

    Widgets::Ref<Kind::image> background  = its("Image4");
    Widgets::LabelRef amplifierId         = its("lblAmpId12");
    Widgets::LabelRef linkText            = its("lblConnected12");
    std::array<Widgets::OptionRef, 5> waves{  ///< by wave type
        its("opt100hz_ch12"), its("opt1000hz_ch12"), its("opt10000hz_ch12"), its("optEIAJ_ch12"),
        its("optLineIn12")};
    Widgets::ButtonRef startButton        = its("cmdGo12");
    Widgets::SliderRef testSlider         = its("ZelvinSlider3");
    Widgets::TimerRef testTimer           = its("tmrVirtualTemp12");
    Readout temperature{{}, {its("ledTemp12(0)"), its("ledTemp12(1)"), its("ledTemp12(2)")}};
    Widgets::ShapeRef clockLamp           = its("Shape6");
    Widgets::ShapeRef readyLamp           = its("Shape17");
    Readout positivePower                 = power.readout("Label53", "LED1", "LED2", "LED25");
    Readout negativePower                 = power.readout("Label68", "LED3", "LED4", "LED26");
    Readout positiveAux                   = aux.readout("Label69", "LED5", "LED6", "LED27");
    Readout negativeAux                   = aux.readout("Label70", "LED7", "LED8", "LED28");
    Widgets::ShapeRef mainsLamp           = its("shpMainPresence12");
    Widgets::CheckRef powerCheck          = its("chkOnOff12");
};

struct Channel : private Internal::ChannelParts {
    using ChannelParts::ChannelParts;

    Readout volume                        = block.readout("Label76", "LED20", "LED19");
    Widgets::SliderRef volumeSlider       = block("ZelvinSlider1");
    Widgets::ShapeRef muteLamp            = block("Shape16");
    Widgets::ButtonRef muteButton         = block("Command12");
    Widgets::ShapeRef protectionLamp      = either("Shape18", "Shape21");
    Widgets::ShapeRef signalLamp          = either("Shape22", "Shape23");
    Input positive{either("optP1", "optP2"),
                   Internal::the(std::array{"lin1p", "lin2p", "lin3p", "lin4p"}[index]),
                   either("lin1PSelect", "lin2PSelect")};
    Input negative{either("optN1", "optN2"),
                   Internal::the(std::array{"lin1n", "lin2n", "lin3n", "lin4n"}[index]),
                   either("lin1NSelect", "lin2NSelect")};
    Widgets::LineRef output               = either("lin1", "lin2");  ///< the line to the scope
    Widgets::PictureRef scope             = either("Picture1", "Picture2");
};

// clang-format on

inline constexpr Common kCommon;
inline constexpr std::array kPairs{Pair(0), Pair(1)};
inline constexpr std::array kChannels{Channel(0), Channel(1), Channel(2), Channel(3)};

/// Pairs and channels are counted from 1; for a number that is only known later there are `kPairs`
/// and `kChannels`.
consteval const Pair& pair(std::size_t number) { return kPairs.at(number - 1); }
consteval const Channel& channel(std::size_t number) { return kChannels.at(number - 1); }

}  // namespace Orvo::Layout
