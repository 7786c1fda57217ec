#pragma once

#include <cstdint>
#include <string>

namespace orvanta {

class Shell;

/// Starts an entry's program or opens its file.
class modExec {
 public:
  explicit modExec(Shell& shell) : shell_(shell) {}

  /// Opens the entry's file, then shows the hourglass until the started program becomes active; events are
  /// delivered meanwhile. If the start fails, reports it as soon as that shows and returns false.
  bool ExecItem(const std::string& entry);
  /// Reports a failed start in a message box; does nothing if `code` is above 32 or below 0.
  void ExecError(std::int32_t code);

 private:
  /// Waits for the program's window and returns the result of the start as it is known then.
  int WaitForProgram(int start);

  Shell& shell_;
};

}  // namespace orvanta
