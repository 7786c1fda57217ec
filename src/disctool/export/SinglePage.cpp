#include "disctool/export/SinglePage.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <regex>

#include "disctool/gallery/SiteFile.h"

namespace orvanta {
namespace {

namespace fs = std::filesystem;

/// A script that stands in a page must not end it: in JSON and in string literals a backslash changes
/// nothing.
std::string Unended(std::string script) {
  for (std::size_t at = 0; (at = script.find("</", at)) != std::string::npos; at += 3)
    script.insert(at + 1, "\\");
  return script;
}

std::string HashOf(const std::string& script) {
  const QByteArrayView bytes(script.data(), static_cast<qsizetype>(script.size()));
  return "'sha256-" + QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toBase64().toStdString() +
         "'";
}

void Replace(std::string& text, const std::string& what, const std::string& by) {
  if (const auto at = text.find(what); at != std::string::npos) text.replace(at, what.size(), by);
}

}  // namespace

std::string Base64(const std::string& bytes) {
  return QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size())).toBase64().toStdString();
}

std::string SinglePage(const fs::path& page, const std::string& index) {
  std::string html = TextOfFile(page / "index.html");
  const std::string program = TextOfFile(page / "orvanta.wasm");
  if (html.empty() || program.empty()) return {};
  Replace(html, "<link rel=\"stylesheet\" href=\"page.css\">",
          "<style>\n" + TextOfFile(page / "page.css") + "</style>");
  std::string hashes;
  const auto inlined = [&](const std::string& script) {
    hashes += HashOf(script) + ' ';
    return "<script>" + script + "</script>";
  };
  std::string scripts = inlined("globalThis.orvantaDisc = " + Unended(index) + ";\n" +
                                "globalThis.orvantaProgram = () => Uint8Array.from(atob('" + Base64(program) +
                                "'), (c) => c.charCodeAt(0));\n");
  static const std::regex kScript("<script src=\"([^\"]+)\"></script>\n?");
  const std::string whole = html;
  const std::sregex_iterator first(whole.begin(), whole.end(), kScript), end;
  for (auto found = first; found != end; ++found) {
    const std::string script = TextOfFile(page / (*found)[1].str());
    if (script.empty()) return {};
    scripts += inlined(Unended(script)) + '\n';
  }
  if (first == end) return {};
  const auto begin = static_cast<std::size_t>(first->position());
  html = std::regex_replace(html, kScript, "");
  html.insert(begin, scripts);
  Replace(html, "script-src 'self'", "script-src " + hashes);
  return html;
}

}  // namespace orvanta
