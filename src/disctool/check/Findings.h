#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "disctool/check/FindingTable.h"
#include "disctool/disc/Catalogue.h"

namespace orvanta {

/// One fault of a disc.
struct Finding {
  enum class Severity {
    Error,
    Warning,
    Note,  ///< about this machine, not the disc; never counts as a fault
  };
  DiscPlace place;
  Severity severity = Severity::Error;
  std::string_view id;  ///< from the table, such as "missing-key"
  std::string text;     ///< in the user's language
  std::string mended;   ///< the value that the setting should have; empty if that is not known
};

/// "error", "warning" or "note", to be translated.
const char* NameOf(Finding::Severity severity);

/// The faults of a disc.
class Findings {
 public:
  void Error(const DiscPlace& place, FindingId id, std::string text) {
    list_.push_back({place, Finding::Severity::Error, id.text, std::move(text), {}});
  }
  void Warning(const DiscPlace& place, FindingId id, std::string text, std::string mended = {}) {
    list_.push_back({place, Finding::Severity::Warning, id.text, std::move(text), std::move(mended)});
  }

  void Note(const DiscPlace& place, FindingId id, std::string text) {
    list_.push_back({place, Finding::Severity::Note, id.text, std::move(text), {}});
  }

  /// Sorts by file and line; findings in the same line keep their order.
  void Sort();
  const std::vector<Finding>& List() const { return list_; }
  std::size_t Errors() const { return Count(Finding::Severity::Error); }
  std::size_t Warnings() const { return Count(Finding::Severity::Warning); }
  std::size_t Notes() const { return Count(Finding::Severity::Note); }

 private:
  std::size_t Count(Finding::Severity severity) const;

  std::vector<Finding> list_;
};

/// `file:line: error: text`, one per line, as compilers write it.
std::string FindingsText(const Findings& findings);
/// `[{"file", "line", "severity", "id", "text"}]` in one line.
std::string FindingsJson(const Findings& findings);

}  // namespace orvanta
