#include "disctool/gallery/SiteFile.h"

#include <QFile>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <iterator>
#include <system_error>

namespace orvanta {

namespace fs = std::filesystem;

std::string SiteFile(const char* name) {
  QFile file(QString(":/gallery/%1").arg(name));
  return file.open(QFile::ReadOnly) ? file.readAll().toStdString() : std::string();
}

std::string TextOfFile(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator(in), {}};
}

std::string WriteSiteFile(const fs::path& file, const std::string& text) {
  std::error_code error;
  if (fs::is_regular_file(file, error) && TextOfFile(file) == text) return {};
  fs::path part = file;
  part += ".part";
  std::ofstream out(part, std::ios::binary);
  out << text;
  out.close();
  if (out) fs::rename(part, file, error);
  if (out && !error) return {};
  const std::string reason = error ? error.message() : std::strerror(errno);
  fs::remove(part, error);
  return file.string() + ": " + reason;
}

}  // namespace orvanta
