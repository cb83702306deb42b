#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <variant>

#include "Orvo/core/call_listener.h"
#include "Orvo/core/member_table.h"

namespace Orvo::Manager {

/// A panel whose host is listened to. A host that is given this instead of the panel itself notices
/// no difference.
class ObservedPanel final : public MarvaneAssistantInterface {
public:
    ObservedPanel(MarvaneAssistantInterface& panel, CallListener& listener)
        : panel_(panel), listener_(listener) {}

    String TrimStr(const String& strName) override { return std::get<String>(call(1, strName)); }
    String LPSTRtoSTRING(Long lngPointer) override { return std::get<String>(call(2, lngPointer)); }
    Long GetAvailablePorts(const String& ServerName) override {
        return std::get<Long>(call(3, ServerName));
    }
    void CancellaTesto() override { call(4); }
    void AggiugiTesto(const String& strTesto) override { call(5, strTesto); }
    void chkTest(Integer Ncheck, Boolean blnValue) override { call(6, Ncheck, blnValue); }
    Boolean chkTest(Integer Ncheck) override { return std::get<Boolean>(call(7, Ncheck)); }
    void ClearMains() override { call(8); }
    void ClearTest() override { call(9); }
    void Connected(Boolean blnValue) override { call(10, blnValue); }
    void Protection(Integer intChannel, Boolean blnValue) override {
        call(11, intChannel, blnValue);
    }
    void Signal(Integer intChannel, Boolean blnValue) override { call(12, intChannel, blnValue); }
    void AbilitaSlave(Boolean blnAbilita) override { call(13, blnAbilita); }
    Integer IdDevice() override { return std::get<Integer>(call(14)); }
    void IdDevice(Integer intIdDevice) override { call(15, intIdDevice); }
    void VPPower(Integer intChannel, Integer intValue) override { call(16, intChannel, intValue); }
    void VPAux(Integer intChannel, Integer intValue) override { call(17, intChannel, intValue); }
    void Clock(Integer intChannel, Boolean blnValue) override { call(18, intChannel, blnValue); }
    void Ready(Integer intChannel, Boolean blnValue) override { call(19, intChannel, blnValue); }
    void VNPower(Integer intChannel, Integer intValue) override { call(20, intChannel, intValue); }
    void VNAux(Integer intChannel, Integer intValue) override { call(21, intChannel, intValue); }
    Boolean PowerOn() override { return std::get<Boolean>(call(22)); }
    void MainPresence(Boolean Status) override { call(23, Status); }
    void PowerOn(Boolean Status) override { call(24, Status); }
    void Volume(Integer intChannel, Integer intValue) override { call(25, intChannel, intValue); }
    void VolumeSlider(Integer intChannel, Integer intValue) override {
        call(26, intChannel, intValue);
    }
    Boolean VolumeSliderButtonDown(Integer intChannel) override {
        return std::get<Boolean>(call(27, intChannel));
    }
    void Temperature(Integer intChannel, Integer intValue) override {
        call(28, intChannel, intValue);
    }
    void TimerVirtualTemp12(Boolean bln) override { call(29, bln); }
    void TimerVirtualTemp34(Boolean bln) override { call(30, bln); }
    void DisegnaAssi(Integer intNCanale) override { call(31, intNCanale); }
    void DisegnaFormaDOnda(Integer intNumCanale, const IntegerArray& arrSamples) override {
        call(32, intNumCanale, arrSamples);
    }
    void Mute(Integer intChannel, Boolean blnValue) override { call(33, intChannel, blnValue); }
    Boolean Mute(Integer intChannel) override { return std::get<Boolean>(call(34, intChannel)); }
    void ReadOnly(Boolean blnValue) override { call(35, blnValue); }
    Boolean ReadOnly() override { return std::get<Boolean>(call(36)); }

private:
    // Calls the member with this number in the table and tells of it.
    template <class... Arguments>
    Value call(int number, const Arguments&... arguments) {
        return callWith(kMembers[static_cast<std::size_t>(number - 1)],
                        std::array<Value, sizeof...(Arguments)>{arguments...});
    }
    Value callWith(const Member& member, std::span<const Value> arguments);

    MarvaneAssistantInterface& panel_;
    CallListener& listener_;
};

}  // namespace Orvo::Manager
