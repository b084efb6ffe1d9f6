// The paywall as loops over pixels: copies, fills, blends and one mask for each text. Corners are square.
#pragma once

#include <vector>

#include "Floor/Blitter.hpp"
#include "Floor/Pictures.hpp"

namespace peers::floor {

class PaywallByHand {
public:
    explicit PaywallByHand(const Pictures& pictures);

    void paint(Canvas& canvas) const;

private:
    const Pictures& m_pictures;
    std::vector<Mask> m_texts;
};

} // namespace peers::floor
