#pragma once

#include "disctool/check/Findings.h"

namespace orvanta {

class DiscProbe;
class DiscTree;

/// Finds everything that is wrong with a disc, sorted. Never fails: a folder without a disc is a finding too.
Findings CheckDisc(const DiscTree& disc, DiscProbe& probe, bool deep = false);

}  // namespace orvanta
