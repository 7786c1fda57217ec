#include <gtest/gtest.h>

#include "config/LookupCases.h"
#include "config/ProfileScanner.h"
#include "config/ProfileString.h"
#include "config/ReferenceLookup.h"

namespace orvanta {
namespace {

TEST(ProfileString, AgreesWithThePlatformOnKnownFiles) {
  for (const auto& known : testing::kLookupCases) {
    SCOPED_TRACE(known.name);
    EXPECT_EQ(ProfileStringOf(known.file, known.section, known.key), known.expected);
    EXPECT_EQ(testing::ReferenceLookup(known.file, known.section, known.key), known.expected);
  }
}

}  // namespace
}  // namespace orvanta
