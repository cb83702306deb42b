#include "Manager/Station/observed_panel.h"

#include <array>

namespace Orvo::Manager {

template <class... Arguments>
Value ObservedPanel::call(int number, const Arguments&... arguments) {
    const Member& member = kMembers[static_cast<std::size_t>(number - 1)];
    const std::array<Value, sizeof...(Arguments)> values{arguments...};
    listener_.called(member, values);
    try {
        Value result = member.call(panel_, values);
        listener_.returned(member, result);
        return result;
    } catch (const Error& error) {
        listener_.failed(member, error);
        throw;
    }
}

// By their numbers in the member table.
using I = Integer;
using B = Boolean;

String ObservedPanel::TrimStr(const String& text) { return std::get<String>(call(1, text)); }
String ObservedPanel::LPSTRtoSTRING(Long address) { return std::get<String>(call(2, address)); }
Long ObservedPanel::GetAvailablePorts(const String& name) { return std::get<Long>(call(3, name)); }
void ObservedPanel::CancellaTesto() { call(4); }
void ObservedPanel::AggiugiTesto(const String& text) { call(5, text); }
void ObservedPanel::chkTest(I row, B value) { call(6, row, value); }
B ObservedPanel::chkTest(I row) { return std::get<B>(call(7, row)); }
void ObservedPanel::ClearMains() { call(8); }
void ObservedPanel::ClearTest() { call(9); }
void ObservedPanel::Connected(B value) { call(10, value); }
void ObservedPanel::Protection(I channel, B value) { call(11, channel, value); }
void ObservedPanel::Signal(I channel, B value) { call(12, channel, value); }
void ObservedPanel::AbilitaSlave(B value) { call(13, value); }
I ObservedPanel::IdDevice() { return std::get<I>(call(14)); }
void ObservedPanel::IdDevice(I value) { call(15, value); }
void ObservedPanel::VPPower(I channel, I value) { call(16, channel, value); }
void ObservedPanel::VPAux(I channel, I value) { call(17, channel, value); }
void ObservedPanel::Clock(I channel, B value) { call(18, channel, value); }
void ObservedPanel::Ready(I channel, B value) { call(19, channel, value); }
void ObservedPanel::VNPower(I channel, I value) { call(20, channel, value); }
void ObservedPanel::VNAux(I channel, I value) { call(21, channel, value); }
B ObservedPanel::PowerOn() { return std::get<B>(call(22)); }
void ObservedPanel::MainPresence(B value) { call(23, value); }
void ObservedPanel::PowerOn(B value) { call(24, value); }
void ObservedPanel::Volume(I channel, I value) { call(25, channel, value); }
void ObservedPanel::VolumeSlider(I channel, I value) { call(26, channel, value); }
B ObservedPanel::VolumeSliderButtonDown(I channel) { return std::get<B>(call(27, channel)); }
void ObservedPanel::Temperature(I channel, I value) { call(28, channel, value); }
void ObservedPanel::TimerVirtualTemp12(B value) { call(29, value); }
void ObservedPanel::TimerVirtualTemp34(B value) { call(30, value); }
void ObservedPanel::DisegnaAssi(I channel) { call(31, channel); }
void ObservedPanel::DisegnaFormaDOnda(I channel, const IntegerArray& samples) {
    call(32, channel, samples);
}
void ObservedPanel::Mute(I channel, B value) { call(33, channel, value); }
B ObservedPanel::Mute(I channel) { return std::get<B>(call(34, channel)); }
void ObservedPanel::ReadOnly(B value) { call(35, value); }
B ObservedPanel::ReadOnly() { return std::get<B>(call(36)); }

}  // namespace Orvo::Manager
