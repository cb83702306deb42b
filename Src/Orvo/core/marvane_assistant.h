#pragma once

#include <memory>
#include <span>

#include "Orvo/core/connection.h"
#include "Orvo/core/events.h"
#include "Orvo/core/interface.h"
#include "Orvo/core/late_binding.h"
#include "Orvo/export.h"
#include "Orvo/service/platform.h"
#include "Orvo/widgets/widget_tree.h"

namespace Orvo {

class CallListener;
class Panel;

/// The front panel of a four-channel power amplifier.
///
/// It talks to no device: a host pushes in what the amplifier reports through the members, and
/// hears through the events what a person wants. All calls come from the thread that created it;
/// error 1001 on any other, and nothing is changed. Whatever is called may end with error 7, when
/// memory runs out: the panel is as usable afterwards as it was before. Events are raised on that
/// thread too, and the host's handler may call back into the panel, or release it.
class ORVO_EXPORT MarvaneAssistant final : public MarvaneAssistantInterface {
public:
    /// Creates the panel over a fresh set of widgets and runs its start-up. An error of the
    /// start-up, or error 7 when memory runs out, reaches the caller. The panel and the caller
    /// share the widgets.
    explicit MarvaneAssistant(std::shared_ptr<Widgets::WidgetTree> runtime, Platform platform = {});
    ~MarvaneAssistant() override;
    MarvaneAssistant(const MarvaneAssistant&) = delete;
    MarvaneAssistant& operator=(const MarvaneAssistant&) = delete;

    /// Exchanges two panels, with all that is connected to them, behind the objects that hosts
    /// hold.
    void swap(MarvaneAssistant& other) noexcept;

    /// Connects a sink until the connection ends; a typed sink must live as long. An event goes to
    /// the sinks in the order in which they were connected.
    Connection connect(MarvaneAssistantEvents& sink);
    Connection connect(LateBoundSink sink);

    /// Tells a listener of each call of a member until the connection ends; the listener must live
    /// as long. It may call the panel, and release it, but throws nothing.
    Connection listen(CallListener& listener);

    /// Calls a member by dispatch id; errors 438, 383 and 394 as for `findMember`, conversions and
    /// error 450 as for `Member::call`.
    InvokeResult invoke(Long dispatchId, MemberKind kind, std::span<const Value> arguments = {});

    /// Who is told of an error that nobody waits for: one that ended the handling of a click or a
    /// tick, or that an event's handler let escape; error 7 when memory ran out for one of these.
    /// Without one it is written to standard error.
    void setErrorHandler(ErrorHandler handler);

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
    std::unique_ptr<Panel> panel_;
};

}  // namespace Orvo
