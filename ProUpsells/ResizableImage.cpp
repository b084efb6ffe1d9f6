#include "ProUpsells/ResizableImage.hpp"

namespace proupsells {

using namespace swiftui;

View ResizableImage::body(BuildContext&) const { return Image{image}.resizable() | aspectRatio(contentMode); }

} // namespace proupsells
