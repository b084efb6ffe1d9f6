// Many readings of the same thing.
#pragma once

#include <cstddef>
#include <vector>

namespace peers {

class Series {
public:
    void add(double reading) { m_readings.push_back(reading); }
    std::size_t count() const { return m_readings.size(); }

    // The reading below which this share of all lies: 0 is the least, 0.5 the median, 1 the greatest. 0 where there is none.
    double quantile(double share) const;
    double mean() const;

private:
    std::vector<double> m_readings;
};

} // namespace peers
