#pragma once

#include <algorithm>
#include <chrono>
#include <functional>
#include <vector>

namespace veldix {

/// Milliseconds of a step.
inline double Mide(const std::function<void()>& paso)
{
    const auto antes = std::chrono::steady_clock::now();
    paso();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - antes).count();
}

/// Best times in milliseconds of steps that take turns.
inline std::vector<double> Mejores(const std::vector<std::function<void()>>& pasos, int rondas)
{
    std::vector<double> mejores(pasos.size(), 1e9);
    for (int ronda = 0; ronda < rondas; ++ronda)
        for (std::size_t i = 0; i < pasos.size(); ++i)
            mejores[i] = std::min(mejores[i], Mide(pasos[i]));
    return mejores;
}

}  // namespace veldix
