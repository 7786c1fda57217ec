#include "disctool/gallery/GalleryPage.h"

#include <algorithm>

#include "disctool/OutputText.h"

namespace orvanta {
namespace {

std::string Id(std::size_t number) { return "e" + std::to_string(number); }

/// An element with `attributes` and the content `html`, both already escaped.
std::string Element(const std::string& name, const std::string& attributes, const std::string& html) {
  return "<" + name + (attributes.empty() ? "" : " " + attributes) + ">" + html + "</" + name + ">\n";
}

std::string Attribute(const char* name, const std::string& value) {
  return std::string(name) + "=\"" + HtmlText(value) + "\"";
}

std::string Lines(const std::string& text) {
  std::string html;
  for (const char c : HtmlText(text)) html += c == '\n' ? "<br>\n" : std::string(1, c);
  return html;
}

class Page {
 public:
  explicit Page(const GalleryContents& contents) : contents_(contents), parents_(contents.entries.size()) {
    for (std::size_t i = contents.entries.size(); i-- > 0;)
      for (const std::size_t item : contents.entries[i].items)
        if (item != i) parents_[item] = i;
  }

  std::string Html() const {
    std::string html =
        "<!DOCTYPE html>\n<html lang=\"pl\">\n<head>\n<meta charset=\"utf-8\">\n"
        "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n" +
        Element("title", "", HtmlText(contents_.title)) +
        "<link rel=\"stylesheet\" href=\"gallery.css\">\n<script src=\"gallery.js\" defer></script>\n"
        "</head>\n<body>\n<a class=\"skip\" href=\"#tresc\">Przejdź do treści</a>\n<header>\n" +
        Element("h1", "", HtmlText(contents_.title)) +
        Element("p", "class=\"summary\"", HtmlText(CountsInWords(contents_))) +
        "<form id=\"search\" role=\"search\" hidden><label for=\"words\">Szukaj na płycie</label>\n"
        "<input id=\"words\" type=\"search\" autocomplete=\"off\"><output id=\"found\" "
        "for=\"words\"></output></form>\n"
        "</header>\n";
    if (!contents_.remark.empty()) html += Element("p", "class=\"remark\"", HtmlText(contents_.remark));
    html += FindingList(contents_.findings, "Uwagi o płycie");
    if (contents_.root < contents_.entries.size())
      html += Element("nav", "aria-label=\"Spis treści\"",
                      "<details open><summary>Spis treści</summary>\n" + Outline() + "</details>");
    html += "<main id=\"tresc\">\n";
    for (std::size_t i = 0; i < contents_.entries.size(); ++i) html += Section(i);
    return html + "</main>\n</body>\n</html>\n";
  }

 private:
  const GalleryEntry& At(std::size_t number) const { return contents_.entries[number]; }

  std::string Link(std::size_t number) const {
    return "<a href=\"#" + Id(number) + "\">" + HtmlText(At(number).title) + "</a>";
  }
  std::string LinkWithKind(std::size_t number) const {
    return Link(number) + " <small>" + HtmlText(At(number).kind) + "</small>";
  }

  /// The tree as nested lists. It does not recurse, since the disc decides how deep the tree is.
  std::string Outline() const {
    struct Step {
      std::size_t entry, next;
    };
    std::vector<bool> listed(contents_.entries.size());
    listed[contents_.root] = true;
    std::vector<Step> way{{contents_.root, 0}};
    std::string html = "<ul>\n<li>" + LinkWithKind(contents_.root);
    if (!At(contents_.root).items.empty()) html += "<ul>\n";
    while (!way.empty()) {
      Step& step = way.back();
      const auto& items = At(step.entry).items;
      if (step.next == items.size()) {
        html += items.empty() ? "</li>\n" : "</ul></li>\n";
        way.pop_back();
        continue;
      }
      const std::size_t item = items[step.next++];
      html += "<li>" + LinkWithKind(item);
      // Browsers do not nest more than about 500 elements; deeper items are reached from their own sections.
      constexpr std::size_t kDeepest = 40;
      if (listed[item] || At(item).items.empty() || way.size() == kDeepest) {
        html += "</li>\n";
        continue;
      }
      listed[item] = true;
      html += "<ul>\n";
      way.push_back({item, 0});
    }
    return html + "</ul>\n";
  }

  static std::string Picture(const std::string& file, const GalleryPicture& like, const std::string& text) {
    return "<img loading=\"lazy\" " + Attribute("src", file) + " width=\"" + std::to_string(like.size.width) +
           "\" height=\"" + std::to_string(like.size.height) + "\" " + Attribute("alt", text) + ">";
  }

  static std::string View(const GalleryPicture& view) {
    const std::string ground = view.ground.empty() ? "" : Picture(view.ground, view, "");
    return Element("div", "class=\"view\"", ground + Picture(view.file, view, view.text));
  }

  static std::string Shots(const std::vector<GalleryPicture>& shots) {
    if (shots.empty()) return {};
    std::string html;
    for (const GalleryPicture& shot : shots)
      html +=
          Element("li", "", Element("a", Attribute("href", shot.file), Picture(shot.file, shot, shot.text)));
    return Element("h3", "", "Zrzuty ekranu") + Element("ul", "class=\"shots\"", html);
  }

  static std::string FindingList(const std::vector<std::string>& findings, const std::string& title) {
    if (findings.empty()) return {};
    std::string html;
    for (const std::string& finding : findings) html += Element("li", "", HtmlText(finding));
    return Element("details", "class=\"findings\"",
                   Element("summary", "", title + " (" + std::to_string(findings.size()) + ")") +
                       Element("ul", "", html));
  }

  static std::string Passage(const char* title, const std::string& text) {
    return text.empty() ? std::string() : Element("h3", "", title) + Element("p", "", Lines(text));
  }

  std::string Section(std::size_t number) const {
    const GalleryEntry& entry = At(number);
    std::string kind = HtmlText(entry.kind);
    if (number > contents_.root) kind += " w menu " + Link(parents_[number]);
    std::string html = Element("h2", "", HtmlText(entry.title));
    if (!kind.empty()) html += Element("p", "class=\"kind\"", kind);
    std::string views;
    for (const GalleryPicture& view : entry.views) views += View(view);
    if (!views.empty()) html += Element("div", "class=\"views\"", views);
    html += Words(entry) + Shots(entry.shots) + FindingList(entry.findings, "Uwagi");
    return Element("section", "id=\"" + Id(number) + "\"", html);
  }

  std::string Words(const GalleryEntry& entry) const {
    std::string html = Passage("Opis", entry.description) + Passage("Wymagania", entry.requirements);
    if (!entry.starts.empty())
      html += Element("h3", "", "Uruchamia") + Element("p", "", Element("code", "", HtmlText(entry.starts)));
    if (!entry.sound.empty())
      html += Element("audio",
                      "controls preload=\"none\" " + Attribute("src", entry.sound) + " " +
                          Attribute("aria-label", entry.title),
                      "");
    std::string items;
    for (const std::size_t item : entry.items) items += Element("li", "", LinkWithKind(item));
    if (!items.empty()) html += Element("h3", "", "W tym menu") + Element("ul", "class=\"items\"", items);
    return html.empty() ? html : Element("div", "class=\"words\"", html);
  }

  const GalleryContents& contents_;
  std::vector<std::size_t> parents_;  // for each entry, the first menu that leads to it
};

}  // namespace

std::string GalleryPage(const GalleryContents& contents) { return Page(contents).Html(); }

std::string KindInWords(NodeKind kind) {
  switch (kind) {
    case NodeKind::Menu: return "menu";
    case NodeKind::Program: return "program";
    case NodeKind::Music: return "muzyka";
    case NodeKind::Film: return "film";
    case NodeKind::Inert: break;
  }
  return "bez treści";
}

std::string CountsInWords(const GalleryContents& contents) {
  std::string text;
  for (const NodeKind kind : {NodeKind::Program, NodeKind::Music, NodeKind::Film, NodeKind::Menu}) {
    const std::string words = KindInWords(kind);
    const auto count = std::ranges::count(contents.entries, words, &GalleryEntry::kind);
    if (count > 0) text += (text.empty() ? "" : " · ") + words + ": " + std::to_string(count);
  }
  return text;
}

}  // namespace orvanta
