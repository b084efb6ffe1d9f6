// Shows display lists in memory: what stands behind a window, and what a picture file is made of.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "Backends/Raster/Picture.hpp"
#include "Backends/Raster/PixelBuffer.hpp"
#include "Backends/Raster/PixelRect.hpp"
#include "Platform/Host/Surface.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::rasterbackend {

class MoveFinder;
class RasterPainter;
struct PaintTarget;

// Paints into memory of its own, or into a buffer that is lent to it. Main thread only.
class PROUPSELLS_EXPORT RasterSurface final : public host::Surface {
public:
    // Shares what other surfaces have prepared.
    RasterSurface();
    // Keeps what it prepares to itself, and to those who share `painter`.
    explicit RasterSurface(std::shared_ptr<RasterPainter> painter);
    ~RasterSurface() override;

    // The buffer must stay until another one, or none, is lent. A buffer that differs from the last one is painted whole, unless it
    // `holdsShown`: what the lists before have left in the last one. What does not fit into it is cut off.
    void lend(const std::optional<PixelBuffer>& buffer, bool holdsShown = false);
    // The next list is painted whole: something else has written into the lent buffer.
    void forgetShown() { m_scale = 0; }

    // A size that is no whole number of pixels is rounded up.
    void present(const graphics::DisplayList& list, geometry::Size size, double scale) override;

    // Reads the pictures of the last list, and those that it expects to be wanted soon, into memory, beside the main thread: to be
    // called when nothing moves, say a second after the last list. Without it they are read when they are painted for the second
    // time.
    void prepareAhead();

    // What was painted, while no buffer is lent. Null before the first list, and where the size is empty.
    const Picture& picture() const { return m_picture; }
    // What the last list changed, in pixels; rectangles that do not overlap. Empty when nothing differed.
    const std::vector<PixelRect>& lastDamage() const { return m_damage; }

private:
    PixelSize sizeOfTarget(geometry::Size size, double scale) const;
    bool paintsDirectly() const;
    void findDamagedPixels(const graphics::DisplayList& list, const PixelRect& window);
    void movePixels(const graphics::DisplayList& list, const PaintTarget& target);
    void leaveOutHiddenDamage(const graphics::DisplayList& list);
    void copyToBuffer(const PixelRect& rect) const;

    std::shared_ptr<RasterPainter> m_painter;
    std::optional<PixelBuffer> m_buffer;
    Picture m_picture; // also where the lent buffer has another order of bytes
    graphics::DisplayList m_shown;
    geometry::Size m_size;
    double m_scale = 0; // 0: nothing is shown
    std::vector<geometry::Rect> m_damagedPoints;
    std::vector<PixelRect> m_damage;
    std::unique_ptr<MoveFinder> m_moveFinder;
    std::vector<PixelRect> m_painted; // of the damage, what is painted rather than copied
};

// The number of pixels that `size` points fill at `scale`.
PROUPSELLS_EXPORT PixelSize pixelSize(geometry::Size size, double scale);

} // namespace proupsells::rasterbackend
