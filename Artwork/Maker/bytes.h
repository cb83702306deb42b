#pragma once

#include <concepts>
#include <cstdint>

#include <QByteArray>

namespace Orvo::Artwork {

/// Bytes of a file whose numbers begin with their least byte.
class Bytes {
public:
    template <std::integral... Numbers>
    Bytes& add(Numbers... numbers) {
        (addNumber(numbers), ...);
        return *this;
    }
    Bytes& add(const QByteArray& bytes) {
        bytes_ += bytes;
        return *this;
    }
    /// Zeros, until the size is a multiple of this.
    Bytes& padTo(qsizetype multiple) {
        while (bytes_.size() % multiple != 0) bytes_ += '\0';
        return *this;
    }
    [[nodiscard]] const QByteArray& all() const { return bytes_; }

private:
    template <std::integral Number>
    void addNumber(Number number) {
        for (std::size_t byte = 0; byte < sizeof number; ++byte)
            bytes_ += char((std::uint64_t(number) >> (8 * byte)) & 0xFF);
    }

    QByteArray bytes_;
};

}  // namespace Orvo::Artwork
