#include "ProUpsells/Entitlement.hpp"

namespace proupsells {

const std::string& analyticsValue(Entitlement) {
    static const std::string value = "VELA_PRO";
    return value;
}

} // namespace proupsells
