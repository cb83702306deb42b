#pragma once

#include <string>
#include <vector>

#include <QString>

#include "Support/temporary_directory.h"

namespace Orvo::Tests {

/// A file that nobody has any business with, named in a place of its own.
class TrappedFile {
public:
    TrappedFile();
    ~TrappedFile();
    TrappedFile(const TrappedFile&) = delete;
    TrappedFile& operator=(const TrappedFile&) = delete;

    [[nodiscard]] QString path() const { return QString::fromStdString(path_); }
    [[nodiscard]] bool hasBeenOpened() const;

private:
    TemporaryDirectory directory_;
    std::string path_ = directory_.path() / "picture.png";
    const int watch_;
};

struct HostileText {
    const char* label;
    QString text;
};

/// Some of them have this file opened where they are taken for markup.
std::vector<HostileText> hostileTexts(const TrappedFile& file);

/// What nothing on the screen may have: a text that is taken for markup, that is endless, or that
/// has more than lines of what can be seen, also where screen readers get it; a tip or a
/// dialog that is larger than the screen.
std::string faultsOnScreen();

}  // namespace Orvo::Tests
