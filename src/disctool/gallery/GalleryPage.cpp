#include "disctool/gallery/GalleryPage.h"

#include "disctool/OutputText.h"

namespace orvanta {
namespace {

constexpr const char* kStyle = R"(
body { margin: 2em; background: #202428; color: #e8e8e8; font: 16px/1.4 sans-serif; }
h2 { margin: 2em 0 .5em; font-size: 1.2em; border-top: 1px solid #555; padding-top: .5em; }
h2 small { font-weight: normal; color: #9ab; }
a { color: #8cf; }
img { margin: .3em .6em .3em 0; max-width: 100%; vertical-align: top; }
ul { padding-left: 1.3em; }
)";

std::string Id(std::size_t number) { return "e" + std::to_string(number); }

std::string Link(const std::vector<GalleryEntry>& entries, std::size_t number) {
  const GalleryEntry& entry = entries[number];
  return "<a href=\"#" + Id(number) + "\">" + HtmlText(entry.title) + "</a> " + HtmlText(entry.kind);
}

/// The tree as lists in lists, without recursion: a disc decides how deep it is.
std::string Outline(const std::vector<GalleryEntry>& entries, std::size_t root) {
  struct Step {
    std::size_t entry, next;
  };
  std::vector<bool> listed(entries.size());
  listed[root] = true;
  std::vector<Step> way{{root, 0}};
  std::string html = "<ul>\n<li>" + Link(entries, root) + "<ul>\n";
  while (!way.empty()) {
    Step& step = way.back();
    const auto& items = entries[step.entry].items;
    if (step.next == items.size()) {
      html += "</ul></li>\n";
      way.pop_back();
      continue;
    }
    const std::size_t item = items[step.next++];
    html += "<li>" + Link(entries, item);
    if (listed[item] || entries[item].items.empty()) {
      html += "</li>\n";
      continue;
    }
    listed[item] = true;
    html += "<ul>\n";
    way.push_back({item, 0});
  }
  return html + "</ul>\n";
}

std::string Section(const std::vector<GalleryEntry>& entries, std::size_t number) {
  const GalleryEntry& entry = entries[number];
  std::string html = "<h2 id=\"" + Id(number) + "\">" + HtmlText(entry.title) + " <small>" +
                     HtmlText(entry.kind) + "</small></h2>\n<p>";
  for (const std::string& file : entry.files)
    html += "<img loading=\"lazy\" src=\"" + HtmlText(file) + "\" alt=\"" + HtmlText(entry.title) + "\">\n";
  html += "</p>\n";
  if (entry.items.empty()) return html;
  html += "<ul>\n";
  for (const std::size_t item : entry.items) html += "<li>" + Link(entries, item) + "</li>\n";
  return html + "</ul>\n";
}

}  // namespace

std::string GalleryPage(const std::string& title, const std::vector<GalleryEntry>& entries,
                        std::size_t root) {
  std::string html = "<!DOCTYPE html>\n<html lang=\"en\">\n<meta charset=\"utf-8\">\n<title>" +
                     HtmlText(title) + "</title>\n<style>" + kStyle + "</style>\n<h1>" + HtmlText(title) +
                     "</h1>\n";
  if (root < entries.size()) html += Outline(entries, root);
  for (std::size_t i = 0; i < entries.size(); ++i) html += Section(entries, i);
  return html + "</html>\n";
}

}  // namespace orvanta
