#include "disctool/gallery/LibraryPage.h"

#include "disctool/OutputText.h"

namespace orvanta {
namespace {

std::string Cover(const GalleryContents& contents, const std::string& folder) {
  if (contents.root >= contents.entries.size() || contents.entries[contents.root].views.empty()) return {};
  const GalleryPicture& view = contents.entries[contents.root].views.front();
  const auto image = [&](const std::string& file, const std::string& text) {
    return "<img loading=\"lazy\" src=\"" + HtmlText(folder + "/" + file) + "\" width=\"" +
           std::to_string(view.size.width) + "\" height=\"" + std::to_string(view.size.height) + "\" alt=\"" +
           HtmlText(text) + "\">";
  };
  return "<span class=\"view\">" + (view.ground.empty() ? "" : image(view.ground, "")) +
         image(view.file, contents.title) + "</span>";
}

}  // namespace

std::string LibraryCard(const GalleryContents& contents, const std::string& folder) {
  return "<li><a href=\"" + HtmlText(folder) + "/index.html\">" + Cover(contents, folder) + "<h2>" +
         HtmlText(contents.title) + "</h2></a><p class=\"summary\">" + HtmlText(CountsInWords(contents)) +
         "</p></li>\n";
}

std::string LibraryIndex(const GalleryContents& contents, const std::string& folder) {
  std::string index;
  for (std::size_t i = contents.root; i < contents.entries.size(); ++i) {
    const GalleryEntry& entry = contents.entries[i];
    const bool root = i == contents.root;
    const std::string& title = root ? contents.title : entry.title;
    index += "[" + JsonText(folder) + "," + JsonText("e" + std::to_string(i)) + "," + JsonText(title) + "," +
             JsonText(root ? "płyta" : entry.kind) + "," +
             JsonText(entry.description + " " + entry.requirements + " " + entry.starts) + "],\n";
  }
  return index;
}

std::string LibraryPage(const std::vector<std::string>& cards) {
  std::string html =
      "<!DOCTYPE html>\n<html lang=\"pl\">\n<head>\n<meta charset=\"utf-8\">\n"
      "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>Zbiór płyt</title>\n"
      "<link rel=\"stylesheet\" href=\"gallery.css\">\n<script src=\"search-index.js\" defer></script>\n"
      "<script src=\"library.js\" defer></script>\n</head>\n<body>\n"
      "<a class=\"skip\" href=\"#plyty\">Przejdź do płyt</a>\n<header>\n<h1>Zbiór płyt</h1>\n"
      "<p class=\"summary\">płyty: " +
      std::to_string(cards.size()) +
      "</p>\n<form id=\"search\" role=\"search\" hidden><label for=\"words\">Szukaj na wszystkich "
      "płytach</label>\n"
      "<input id=\"words\" type=\"search\" autocomplete=\"off\"><output id=\"found\" "
      "for=\"words\"></output></form>\n"
      "</header>\n<main>\n<ol class=\"hits\" id=\"hits\" hidden></ol>\n<ul class=\"discs\" id=\"plyty\">\n";
  for (const std::string& card : cards) html += card;
  return html + "</ul>\n</main>\n</body>\n</html>\n";
}

}  // namespace orvanta
