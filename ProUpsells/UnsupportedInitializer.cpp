#include "ProUpsells/UnsupportedInitializer.hpp"

#include <string>

#include "Platform/Commons/FatalError.hpp"

namespace proupsells {

void stopAtInitializerFromArchive() { commons::fatalError("init(coder:) has not been implemented"); }

void stopAtUnimplementedInitializer(std::string_view initializer, std::string_view className) {
    commons::fatalError("Use of unimplemented initializer '" + std::string(initializer) + "' for class 'ProUpsells." +
                        std::string(className) + "'");
}

} // namespace proupsells
