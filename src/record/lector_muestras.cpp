#include "record/lector_muestras.h"

#include <algorithm>

namespace veldix {

namespace {

std::size_t LargoMuestra(int analogicos, int digitales)
{
    const int palabras = (std::max(digitales, 0) + 15) / 16;
    return LectorMuestras::kCabecera + 2 * static_cast<std::size_t>(std::max(analogicos, 0) + palabras);
}

}  // namespace

LectorMuestras::LectorMuestras(const std::string& ruta, int analogicos, int digitales)
    : fichero_(ruta),
      largo_(LargoMuestra(analogicos, digitales)),
      buf_(std::max<std::size_t>(1, kTrozo / largo_) * largo_)
{
}

const unsigned char* LectorMuestras::Lee()
{
    if (lleno_ - pos_ < largo_) {
        pos_ = 0;
        lleno_ = fichero_.Lee({reinterpret_cast<char*>(buf_.data()), buf_.size()});
        if (lleno_ < largo_) return nullptr;
    }
    const unsigned char* muestra = buf_.data() + pos_;
    pos_ += largo_;
    return muestra;
}

}  // namespace veldix
