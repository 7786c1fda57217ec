#pragma once

#include <cstdint>
#include <string>

namespace orvanta {

class Shell;

/// Starts an entry's program or opens its file.
class modExec {
 public:
  explicit modExec(Shell& shell) : shell_(shell) {}

  /// Opens the entry's file and holds the hourglass until the started program has taken the activation;
  /// events are delivered meanwhile. A start that fails is told at once; false then.
  bool ExecItem(const std::string& entry);
  /// Tells the user of a failed start; `code` above 32 or below 0 is none.
  void ExecError(std::int32_t code);

 private:
  void WaitForProgram();

  Shell& shell_;
};

}  // namespace orvanta
