// How the store page is scrolled: to its end and back, 20 points a frame, while the strips drift at every sixth frame.
#pragma once

namespace peers {

class ScrollPath {
public:
    static constexpr int frames = 300;
    // Frames in which the strips drift and nothing is scrolled.
    static constexpr int driftFrames = 100;
    // The frame of which a picture is taken where one is wanted.
    static constexpr int pictureFrame = 40;

    explicit ScrollPath(double largestOffset) : m_largestOffset(largestOffset) {}

    // The offset of the next frame.
    double next() {
        m_offset += m_step;
        if (m_offset > m_largestOffset || m_offset < 0) {
            m_step = -m_step;
            m_offset += 2 * m_step;
        }
        return m_offset;
    }
    static constexpr bool driftsIn(int frame) { return frame % 6 == 5; }

private:
    double m_largestOffset;
    double m_offset = 0;
    double m_step = 20;
};

} // namespace peers
