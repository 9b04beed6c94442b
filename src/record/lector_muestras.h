#pragma once

#include <bit>
#include <cstddef>
#include <string>
#include <vector>

#include "platform/ficheros.h"

namespace veldix {

static_assert(std::endian::native == std::endian::little, "samples are unpacked as they lie in the file");

/// Whole samples of a BINARY `.dat`, one after another. Each is two 32-bit integers, its number and its time
/// stamp, a 16-bit integer an analog channel, and a 16-bit word for each 16 digital channels begun.
class LectorMuestras {
public:
    static constexpr std::size_t kCabecera = 8;  ///< octets of number and time stamp

    /// Raises as LectorTrozos. Negative counts are 0.
    LectorMuestras(const std::string& ruta, int analogicos, int digitales);

    /// The octets of the next sample, until the one after is asked for; null where the file ends before its
    /// end. Raises 57.
    const unsigned char* Lee();

private:
    LectorTrozos fichero_;
    std::size_t largo_, pos_ = 0, lleno_ = 0;
    std::vector<unsigned char> buf_;
};

}  // namespace veldix
