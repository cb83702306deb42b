#pragma once

#include <span>

#include "Orvo/core/member_table.h"
#include "Orvo/values/error.h"

namespace Orvo::Manager {

/// Is told of what a host does with its panel. Each call is told of twice: before it is carried
/// out, and by its end.
class CallListener {
public:
    virtual ~CallListener() = default;
    virtual void called(const Member& member, std::span<const Value> arguments) = 0;
    /// No value when the member has no result.
    virtual void returned(const Member& member, const Value& result) = 0;
    virtual void failed(const Member& member, const Error& error) = 0;
};

/// A panel whose host is listened to. A host that is given this instead of the panel itself notices
/// no difference.
class ObservedPanel final : public MarvaneAssistantInterface {
public:
    ObservedPanel(MarvaneAssistantInterface& panel, CallListener& listener)
        : panel_(panel), listener_(listener) {}

    String TrimStr(const String& strName) override;
    String LPSTRtoSTRING(Long lngPointer) override;
    Long GetAvailablePorts(const String& ServerName) override;
    void CancellaTesto() override;
    void AggiugiTesto(const String& strTesto) override;
    void chkTest(Integer Ncheck, Boolean blnValue) override;
    Boolean chkTest(Integer Ncheck) override;
    void ClearMains() override;
    void ClearTest() override;
    void Connected(Boolean blnValue) override;
    void Protection(Integer intChannel, Boolean blnValue) override;
    void Signal(Integer intChannel, Boolean blnValue) override;
    void AbilitaSlave(Boolean blnAbilita) override;
    Integer IdDevice() override;
    void IdDevice(Integer intIdDevice) override;
    void VPPower(Integer intChannel, Integer intValue) override;
    void VPAux(Integer intChannel, Integer intValue) override;
    void Clock(Integer intChannel, Boolean blnValue) override;
    void Ready(Integer intChannel, Boolean blnValue) override;
    void VNPower(Integer intChannel, Integer intValue) override;
    void VNAux(Integer intChannel, Integer intValue) override;
    Boolean PowerOn() override;
    void MainPresence(Boolean Status) override;
    void PowerOn(Boolean Status) override;
    void Volume(Integer intChannel, Integer intValue) override;
    void VolumeSlider(Integer intChannel, Integer intValue) override;
    Boolean VolumeSliderButtonDown(Integer intChannel) override;
    void Temperature(Integer intChannel, Integer intValue) override;
    void TimerVirtualTemp12(Boolean bln) override;
    void TimerVirtualTemp34(Boolean bln) override;
    void DisegnaAssi(Integer intNCanale) override;
    void DisegnaFormaDOnda(Integer intNumCanale, const IntegerArray& arrSamples) override;
    void Mute(Integer intChannel, Boolean blnValue) override;
    Boolean Mute(Integer intChannel) override;
    void ReadOnly(Boolean blnValue) override;
    Boolean ReadOnly() override;

private:
    // Calls the member with this number and tells of it.
    template <class... Arguments>
    Value call(int number, const Arguments&... arguments);

    MarvaneAssistantInterface& panel_;
    CallListener& listener_;
};

}  // namespace Orvo::Manager
