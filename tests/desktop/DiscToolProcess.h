#pragma once

#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <string>

namespace orvanta {

/// What a run of the tool for discs gave.
struct ToolRun {
  int status = -1;
  std::string output;  ///< of both streams
};

/// Runs the tool with arguments as a shell takes them, and `environment` ("NAME=value ...") before it.
inline ToolRun RunTool(const std::string& arguments, const std::string& environment = {}) {
  const std::string line = "env " + environment + " " ORVANTA_DISC_TOOL " " + arguments + " 2>&1 </dev/null";
  ToolRun run;
  FILE* pipe = popen(line.c_str(), "r");
  if (!pipe) return run;
  std::array<char, 4096> part{};
  while (const std::size_t got = fread(part.data(), 1, part.size(), pipe))
    run.output.append(part.data(), got);
  const int status = pclose(pipe);
  run.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  return run;
}

/// A word for the shell.
inline std::string Quoted(const std::filesystem::path& path) { return "'" + path.string() + "'"; }

}  // namespace orvanta
