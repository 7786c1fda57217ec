#pragma once

#include <span>
#include <string>

#include "disctool/check/Findings.h"

namespace orvanta {

/// Findings as results of SARIF 2.1.0 (OASIS), a line of JSON each.
std::string SarifResults(const Findings& findings);

/// The whole SARIF log over the lines of any number of discs. `complete` says that every disc could be read.
std::string SarifLog(const std::string& results, bool complete, const std::string& toolVersion);

}  // namespace orvanta
