#include <Orvo/core/marvane_assistant.h>
#include <Orvo/ports/machine_platform.h>
#include <Orvo/store/store.h>
#include <Orvo/version.h>

#if __has_include(<Script/words.h>) || __has_include(<Orvo/monitor/volume.h>)
#error A host sees headers that are not public.
#endif

int idOfAPanel();

int idOfAPanel() {
    Orvo::MarvaneAssistant panel(Orvo::Runtime::Store::create(), Orvo::Runtime::machinePlatform());
    panel.IdDevice(ORVO_VERSION_MAJOR + 41);
    return panel.IdDevice();
}
