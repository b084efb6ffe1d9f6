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

// Adds the controls that another language, which the device has, has under other identifiers than the first. Both are arrays by the
// names of screens; the first has all screens.
void compareIdentifiers(const Json& first, const Json& other, const Device& device, AuditLedger& ledger);

AuditLedger auditOffers(const AuditSubject& subject);

} // namespace proupsells::hostprogram
