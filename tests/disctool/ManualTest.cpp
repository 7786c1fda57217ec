#include <gtest/gtest.h>

#include <array>
#include <fstream>
#include <map>
#include <sstream>

#include "config/SchemaTable.h"
#include "disctool/OutlineSvg.h"

namespace orvanta::test {
namespace {

std::string Document(const std::string& name) {
  std::ifstream in(std::string(ORVANTA_SOURCE_DIR) + "/docs/" + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

std::string KindName(Kind kind) {
  constexpr std::array kNames = {"picture", "base",   "font",    "sound", "whole", "single",
                                 "double",  "colour", "boolean", "text",  "any"};
  return kNames.at(static_cast<std::size_t>(kind));
}

/// The rows of the manual's tables of keys: section and key to "kind, needed".
std::map<std::string, std::string> ManualKeys() {
  std::map<std::string, std::string> keys;
  std::istringstream text(Document("discs.md"));
  std::string section;
  for (std::string line; std::getline(text, line);) {
    if (line.starts_with("#")) section = line.starts_with("### `[") ? line.substr(6, line.find(']') - 6) : "";
    if (section.empty() || !line.starts_with("| `")) continue;
    std::array<std::string, 4> cells;
    std::istringstream row(line.substr(2));
    for (std::string& cell : cells) std::getline(row, cell, '|');
    const std::string key = cells[0].substr(1, cells[0].find('`', 1) - 1);
    keys[section + " " + key] = cells[1] + cells[2];
    EXPECT_GT(cells[3].size(), 3U) << key << " has no effect";
  }
  return keys;
}

TEST(Manual, TellsEveryKeyOfTheTableAndNoOther) {
  std::map<std::string, std::string> table;
  for (const SchemaKey& key : kSchema) {
    const bool run = key.presence == Presence::Run;
    const std::string needed = run ? "run" : key.presence == Presence::Mandatory ? "yes" : "no";
    table[std::string(key.section) + " " + std::string(key.name) + (run ? "1" : "")] =
        " " + KindName(key.kind) + "  " + needed + " ";
  }
  EXPECT_EQ(ManualKeys(), table);
}

TEST(Manual, HasTheOutlineThatTheWindowHas) { EXPECT_EQ(Document("outline.svg"), OutlineSvg()); }

}  // namespace
}  // namespace orvanta::test
