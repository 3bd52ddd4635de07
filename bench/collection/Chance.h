#pragma once

#include <cmath>
#include <random>

/** Chance that falls the same way for the same seed with every compiler and library. */
class Chance
{
public:
    explicit Chance(unsigned long long seed) : m_source(seed) {}

    /** From 0 up to, but not including, 1. */
    double share() { return double(m_source() >> 11) / 9007199254740992.0; }

    double between(double from, double to) { return from + (to - from) * share(); }

    /** From 0 to @p count - 1. */
    int below(int count) { return int(share() * count); }

    bool happens(double probability) { return share() < probability; }

    /** Around @p median; two thirds of all lie within a factor of exp(@p spread). */
    double logNormal(double median, double spread)
    {
        const double radius = std::sqrt(-2 * std::log(1 - share()));
        return median * std::exp(spread * radius * std::cos(6.283185307179586 * share()));
    }

private:
    std::mt19937_64 m_source;
};
