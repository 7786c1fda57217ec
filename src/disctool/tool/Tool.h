#pragma once

namespace orvanta {

/// The whole of `orvanta-disc`: reads the arguments of `main()`, does what they ask and gives the exit
/// status. Reports go to the standard output, problems to the standard error.
int RunTool(int argc, char** argv);

}  // namespace orvanta
