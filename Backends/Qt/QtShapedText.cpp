#include "Backends/Qt/QtShapedText.hpp"

#include <atomic>

namespace proupsells::qtbackend {

namespace {

std::uint64_t nextSerial() {
    static std::atomic<std::uint64_t> last{0};
    return ++last;
}

} // namespace

QtShapedText::QtShapedText() : serial(nextSerial()) {}

} // namespace proupsells::qtbackend
