#include "disctool/command/DiffCommand.h"

#include "disctool/JsonObject.h"
#include "disctool/OutputText.h"
#include "disctool/Translation.h"
#include "disctool/command/DiscDiff.h"

namespace orvanta {
namespace {

std::string Line(const std::string& text) { return Printable(text) + "\n"; }

std::string ChangeText(const DiscDiff::Value& value) {
  const std::string name = value.key + " [" + value.section + "]: ";
  if (value.before.empty()) return Line("+ " + name + value.after);
  if (value.after.empty()) return Line("- " + name + value.before);
  return Line("~ " + name + value.before + " -> " + value.after);
}

std::string MenuText(const DiscDiff::Menu& menu) {
  std::string text;
  for (const std::string& name : menu.removed) text += Line("- " + menu.name + " > " + name);
  for (const std::string& name : menu.added) text += Line("+ " + menu.name + " > " + name);
  if (menu.reordered) text += Line("~ " + menu.name + ": " + Translated("the items are in another order"));
  return text;
}

std::string FileText(const DiscDiff::File& file) {
  if (!file.before) return Line("+ " + file.path);
  if (!file.after) return Line("- " + file.path);
  if (file.pixels == 0U) return Line("~ " + file.path + ": " + Translated("other bytes, the same pixels"));
  if (file.pixels)
    return Line(
        "~ " + file.path + ": " +
        TranslatedCount("%1 pixel differs", "%1 pixels differ", static_cast<std::size_t>(*file.pixels)));
  if (file.before == file.after)
    return Line("~ " + file.path + ": " + Translated("other bytes, the same size"));
  return Line("~ " + file.path + ": " + Translated("%1 bytes, before %2", *file.after, *file.before));
}

/// A heading and its lines; empty if there are none.
template <class Change, class Text>
std::string Part(const std::string& heading, const std::vector<Change>& changes, Text text) {
  std::string lines;
  for (const Change& change : changes) lines += text(change);
  return lines.empty() ? lines : heading + ":\n" + lines;
}

template <class Change, class Json>
std::string Array(const std::vector<Change>& changes, Json json) {
  std::vector<std::string> values;
  for (const Change& change : changes) values.push_back(json(change));
  return JsonArray(values);
}

std::string ChangeJson(const DiscDiff::Value& value) {
  JsonObject json;
  json.Text("section", value.section).Text("key", value.key);
  return json.Text("before", value.before).Text("after", value.after).Done();
}

std::string MenuJson(const DiscDiff::Menu& menu) {
  JsonObject json;
  json.Text("name", menu.name).Value("removed", Array(menu.removed, JsonText));
  return json.Value("added", Array(menu.added, JsonText)).Flag("reordered", menu.reordered).Done();
}

std::string FileJson(const DiscDiff::File& file) {
  const auto number = [](const std::optional<std::uintmax_t>& value) {
    return value ? std::to_string(*value) : std::string("null");
  };
  JsonObject json;
  json.Text("path", file.path).Value("before", number(file.before)).Value("after", number(file.after));
  return json.Value("pixels", number(file.pixels)).Done();
}

}  // namespace

DiscReport DiffReport(const DiscTree& before, const DiscTree& after, DiscProbe& probe, bool json) {
  for (const DiscTree* disc : {&before, &after})
    if (Catalogue(*disc).Empty()) return {{}, NoDiscIn(disc->Name())};
  const DiscDiff diff = Compare(before, after, probe);
  if (!json)
    return {Part(Translated("settings"), diff.settings, ChangeText) +
                Part(Translated("menus"), diff.menus, MenuText) +
                Part(Translated("texts"), diff.texts, ChangeText) +
                Part(Translated("files"), diff.files, FileText),
            {},
            !diff.Empty()};
  JsonObject line = JsonLine(after.Name().native());
  line.Text("before", before.Name().native()).Value("settings", Array(diff.settings, ChangeJson));
  line.Value("menus", Array(diff.menus, MenuJson)).Value("texts", Array(diff.texts, ChangeJson));
  return {line.Value("files", Array(diff.files, FileJson)).Done() + "\n", {}, !diff.Empty()};
}

}  // namespace orvanta
