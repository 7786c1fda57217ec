#pragma once

namespace orvanta {

/// The program `orvanta-disc`: reads the arguments of `main()`, runs the command and returns the exit status.
/// Results go to the standard output, problems to the standard error.
int RunTool(int argc, char** argv);

}  // namespace orvanta
