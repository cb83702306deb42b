#pragma once

#include <span>

#include <QByteArray>

namespace Orvo::Artwork {

/// A file in Artwork/Pictures.
struct Picture {
    const char* file;
    QByteArray (*make)();
};

std::span<const Picture> pictures();

}  // namespace Orvo::Artwork
