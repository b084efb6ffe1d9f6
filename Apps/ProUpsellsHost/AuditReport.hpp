// An audit's findings as text, JSON, or SARIF 2.1.0, which build machines show beside the sources.
#pragma once

#include <span>
#include <string>

#include "Apps/ProUpsellsHost/AuditLedger.hpp"
#include "Apps/ProUpsellsHost/CommandLine.hpp"

namespace proupsells::hostprogram {

std::string auditReport(std::span<const AuditEntry> entries, AuditFormat format);

} // namespace proupsells::hostprogram
