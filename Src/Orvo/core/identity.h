#pragma once

#include <cstdint>
#include <string_view>

// What a host binds to. The names with leading underscores are the interfaces' published names;
// in C++ they are MarvaneAssistantInterface and MarvaneAssistantEvents.
namespace Orvo::Identity {

struct Library {
    std::string_view name;
    std::string_view id;
    int majorVersion;
    int minorVersion;
    std::uint32_t locale;
    std::string_view helpString;
};

/// How a type library marks its types.
enum TypeFlag : std::uint32_t {
    hidden = 0x10,  ///< from object browsers
    control = 0x20,
    dual = 0x40,  ///< by direct call too, not only by dispatch id
    notExtensible = 0x80,
};

/// Control status flags, as the class registers them.
enum StatusFlag : std::uint32_t {
    recomposeOnResize = 0x1,
    cantLinkInside = 0x10,
    insideOut = 0x80,
    activateWhenVisible = 0x100,
    setClientSiteFirst = 0x20000,
};

struct ComponentClass {
    std::string_view name;
    std::string_view id;
    std::string_view programmaticId;
    std::uint32_t typeFlags;
    std::uint32_t statusFlags;
};

struct Interface {
    std::string_view name;
    std::string_view id;
    std::uint32_t typeFlags;
};

/// A bitmap resource.
struct Picture {
    int resource;
    int width;   ///< pixels
    int height;  ///< pixels
    int colours;
};

inline constexpr Library kLibrary{
    .name = "Orvo",
    .id = "7882F3A5-93D0-4C7A-B9FF-AEEBA91C13A6",
    .majorVersion = 1,
    .minorVersion = 0,
    .locale = 0x0409,
    .helpString = "Orvo",
};

inline constexpr ComponentClass kClass{
    .name = "MarvaneAssistant",
    .id = "39ABF8B7-002B-4A32-B963-E5315F1D24AE",
    .programmaticId = "Orvo.MarvaneAssistant",
    .typeFlags = control,
    .statusFlags =
        recomposeOnResize | cantLinkInside | setClientSiteFirst | insideOut | activateWhenVisible,
};

inline constexpr Interface kDefaultInterface{
    "_MarvaneAssistant", "10E6D219-3040-448F-8C54-8EC0BA6107AF", dual | hidden | notExtensible};

/// The events.
inline constexpr Interface kDefaultSource{
    "__MarvaneAssistant", "616BF7F8-1E70-4966-809E-C185A6AA6E38", hidden | notExtensible};

inline constexpr Picture kToolboxPicture{
    .resource = 30000, .width = 16, .height = 15, .colours = 16};

}  // namespace Orvo::Identity
