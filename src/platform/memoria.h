#pragma once

#include <cstddef>

namespace veldix {

/// The largest table: above it a request is refused with error 7.
inline constexpr std::size_t kMaximoTabla = std::size_t{1} << 30;

/// Zeroed memory for a table's elements. A block of several MiB is aligned to 2 MiB and asks the system for
/// huge pages, since touching its pages costs more than the arithmetic on them; pages that nobody writes
/// cost nothing.
class BloqueCeros {
public:
    BloqueCeros() = default;
    /// `octetos` zeroed bytes. Raises 7 above kMaximoTabla or when the system has no more.
    explicit BloqueCeros(std::size_t octetos);
    BloqueCeros(const BloqueCeros& otro);
    BloqueCeros(BloqueCeros&& otro) noexcept;
    BloqueCeros& operator=(BloqueCeros otro) noexcept;
    ~BloqueCeros();

    void* datos() const { return datos_; }

private:
    void* datos_ = nullptr;
    std::size_t octetos_ = 0;
};

}  // namespace veldix
