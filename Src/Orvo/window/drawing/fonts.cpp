#include "Orvo/window/drawing/fonts.h"

#include <initializer_list>

#include <QFontDatabase>
#include <QStringList>

// A static library's resources are its user's to register; this does it for them. The macro
// doesn't work within a namespace.
static void registerFiles() { Q_INIT_RESOURCE(orvo_fonts); }

namespace Orvo::Window {

namespace {

struct Brought {
    const char* named = "";
    const char* family = "";
    std::initializer_list<const char*> files;
    int stretch = 0;
};

// As wide as Arial and MS Serif to a fraction of a pixel; the extended face is wider than its own.
const Brought kArial{"Arial",
                     "Liberation Sans",
                     {"LiberationSans-Regular", "LiberationSans-Bold", "LiberationSans-Italic"}};
const Brought kSerif{"MS Serif", "Liberation Serif", {"LiberationSerif-Regular"}};
const Brought kMicrogramma{"MicrogrammaDMedExt", "Michroma", {"Michroma-Regular"}, 96};

const Brought& broughtFor(Layout::Face face) {
    if (face == Layout::Face::microgramma) return kMicrogramma;
    return face == Layout::Face::serif ? kSerif : kArial;
}

QStringList installWhatIsMissing() {
    registerFiles();
    QStringList installed = QFontDatabase::families();
    for (const Brought* brought : {&kArial, &kSerif, &kMicrogramma}) {
        if (installed.contains(brought->named) || installed.contains(brought->family)) continue;
        for (const char* file : brought->files)
            QFontDatabase::addApplicationFont(QString(":/orvo/fonts/%1.ttf").arg(file));
    }
    return installed;
}

}  // namespace

// To ask for a face that isn't there costs more than all else about a window.
Family familyOf(Layout::Face face) {
    static const QStringList installed = installWhatIsMissing();
    const Brought& brought = broughtFor(face);
    if (installed.contains(brought.named)) return {brought.named};
    return {brought.family, brought.stretch};
}

}  // namespace Orvo::Window
