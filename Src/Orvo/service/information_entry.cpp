#include "Orvo/service/information_entry.h"

#include "Orvo/layout/roles.h"
#include "Orvo/values/text.h"

namespace Orvo {
namespace {

using namespace Widgets;

constexpr Long kPassword = 530284;
constexpr int kTries = 2;

}  // namespace

void InformationEntry::keyPressed(Integer& keyCode) {
    if (keyCode == kStartKey) start();
}

void InformationEntry::start() {
    if (!knowsPassword()) return;
    widgets_[Layout::kCommon.resetLogButton].setEnabled(false);
    try {
        askAndRaise();
    } catch (const PromptWithdrawn&) {
        // As with a serial number that is left empty: no event.
    }
    widgets_[Layout::kCommon.resetLogButton].setEnabled(true);
}

bool InformationEntry::knowsPassword() {
    try {
        for (int tries = 0; tries < kTries; ++tries) {
            const String typed =
                prompt_.ask({.text = u"Password", .title = {}, .echo = Echo::hidden});
            if (typed == decimalText(kPassword)) return true;
        }
    } catch (const PromptWithdrawn&) {
        // Nobody is left to try again.
    }
    return false;
}

void InformationEntry::askAndRaise() {
    String strSnAmp =
        prompt_.ask({.text = u"Serial number of amplifier", .title = u"SN Amplifier"});
    if (strSnAmp.empty()) return;
    String strSnCard = prompt_.ask(
        {.text = u"Serial number of Control Module Card", .title = u"SN Control Module"});
    if (strSnCard.empty()) return;
    String strInformations =
        prompt_.ask({.text = u"General Informations of Amplifier", .title = u"New Informations"});
    widgets_.mousePointer().setPointer(Pointer::hourglass);
    Integer intIdDevice = id_.get();
    host_.GeneralInformations(intIdDevice, strInformations, strSnAmp, strSnCard);
}

}  // namespace Orvo
