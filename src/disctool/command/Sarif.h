#pragma once

#include <span>
#include <string>

#include "disctool/check/Findings.h"

namespace orvanta {

/// Findings as results of SARIF 2.1.0 (OASIS), each a line of JSON.
std::string SarifResults(const Findings& findings);

/// The complete SARIF log for the lines of any number of discs. `complete` says whether all discs could be
/// read.
std::string SarifLog(const std::string& results, bool complete, const std::string& toolVersion);

}  // namespace orvanta
