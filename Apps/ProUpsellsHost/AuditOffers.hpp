// Looks at all screens of some offers, in all languages.
#pragma once

#include "Apps/ProUpsellsHost/AuditLedger.hpp"
#include "Apps/ProUpsellsHost/AuditMatrix.hpp"
#include "Apps/ProUpsellsHost/Offers.hpp"

namespace proupsells::hostprogram {

struct AuditSubject {
    Offers offers;
    Device device; // what the matrix does not say
    AuditMatrix matrix;
};

AuditLedger auditOffers(const AuditSubject& subject);

} // namespace proupsells::hostprogram
