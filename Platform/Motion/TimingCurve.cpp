#include "Platform/Motion/TimingCurve.hpp"

#include <algorithm>
#include <cmath>

namespace proupsells::motion {
namespace {

// One coordinate of the curve as a polynomial in its parameter.
struct Coordinate {
    double cubic, square, linear;

    Coordinate(double first, double second)
        : cubic(1 + 3 * (first - second)), square(3 * (second - 2 * first)), linear(3 * first) {}

    double at(double t) const { return ((cubic * t + square) * t + linear) * t; }
    double slopeAt(double t) const { return (3 * cubic * t + 2 * square) * t + linear; }
};

// The parameter at which the curve passes `time`. The abscissa never falls, so a bracket around the solution always holds; a
// Newton step that leaves the bracket, or that a flat place makes useless, is replaced by halving it.
double parameterAt(const Coordinate& abscissa, double time) {
    double low = 0, high = 1, t = time;
    for (int step = 0; step < 100; ++step) {
        const double error = abscissa.at(t) - time;
        if (std::abs(error) < 1e-16) break;
        (error < 0 ? low : high) = t;
        const double slope = abscissa.slopeAt(t);
        const double newton = slope > 0 ? t - error / slope : low;
        const double next = newton > low && newton < high ? newton : (low + high) / 2;
        if (next == t) break;
        t = next;
    }
    return t;
}

} // namespace

double TimingCurve::valueAt(double time) const {
    if (!(time > 0)) return 0;
    if (time >= 1) return 1;
    if (x1 == y1 && x2 == y2) return time;
    const Coordinate abscissa{std::clamp(x1, 0.0, 1.0), std::clamp(x2, 0.0, 1.0)};
    return Coordinate{y1, y2}.at(parameterAt(abscissa, time));
}

double Animation::progressAt(double elapsed_s) const {
    if (!(elapsed_s >= delay_s)) return 0;
    if (!(duration_s > 0)) return 1;
    return curve.valueAt((elapsed_s - delay_s) / duration_s);
}

} // namespace proupsells::motion
