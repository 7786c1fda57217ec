#include "disctool/disc/EntryTarget.h"

#include "config/DiscDrive.h"
#include "config/Windows1250.h"
#include "disctool/Translation.h"
#include "disctool/disc/Catalogue.h"

namespace orvanta {
namespace {

std::string_view IdOf(FileKind kind) {
  switch (kind) {
    case FileKind::Document: return "document";
    case FileKind::Native: return "native";
    case FileKind::Script: return "script";
    case FileKind::Dos: return "dos";
    case FileKind::Windows16: return "windows-16";
    case FileKind::Windows32: return "windows-32";
    case FileKind::Windows64: return "windows-64";
    case FileKind::WindowsFile: return "windows-file";
    case FileKind::Broken: break;
  }
  return "broken";
}

FileBytes BytesOn(const DiscTree& disc, const std::string& path, std::uintmax_t size) {
  return {size, [&disc, path](std::uint64_t offset, std::size_t count) {
            return disc.Read(path, offset, count).value_or(std::string());
          }};
}

}  // namespace

bool IsAddress(std::string_view value) {
  for (const std::string_view scheme : {"http:", "https:", "mailto:"})
    if (EqualNoCase(value.substr(0, scheme.size()), scheme)) return true;
  return false;
}

std::string OnDrive(const std::string& path) {
  return HasDrive(path) ? path : std::string(Catalogue::kDiscRoot.substr(0, 2)) + path;
}

EntryTarget TargetOf(const DiscTree& disc, const std::string& value) {
  using Place = EntryTarget::Place;
  if (IsAddress(value)) return {Place::Address};
  const std::string path = OnDrive(value);
  const bool network = value.starts_with("\\\\") || value.starts_with("//");
  if (network || !EqualNoCase(path.substr(0, 1), Catalogue::kDiscRoot.substr(0, 1)))
    return {Place::OffTheDisc};
  const FoundPath found = disc.Find(path);
  if (!found) return {};
  const std::string name = found.path.native();
  const DiscTree::Entry entry = disc.EntryAt(name);
  if (entry.kind == DiscTree::Kind::Folder) return {Place::Folder, name};
  if (entry.kind != DiscTree::Kind::File) return {Place::Special, name};
  return {Place::File, name, FactsOf(BytesOn(disc, name, entry.size), name, entry.executable)};
}

std::string_view IdOf(const EntryTarget& target) {
  switch (target.place) {
    case EntryTarget::Place::Address: return "address";
    case EntryTarget::Place::OffTheDisc: return "off-the-disc";
    case EntryTarget::Place::Missing: return "missing";
    case EntryTarget::Place::Special: return "special";
    case EntryTarget::Place::Folder: return "folder";
    case EntryTarget::Place::File: break;
  }
  return IdOf(target.facts.kind);
}

const char* NameOf(const EntryTarget& target) {
  switch (target.place) {
    case EntryTarget::Place::Address: return Translatable("address");
    case EntryTarget::Place::OffTheDisc: return Translatable("not on the disc");
    case EntryTarget::Place::Missing: return Translatable("missing");
    case EntryTarget::Place::Special: return Translatable("not a file");
    case EntryTarget::Place::Folder: return Translatable("folder");
    case EntryTarget::Place::File: break;
  }
  switch (target.facts.kind) {
    case FileKind::Document: return Translatable("document");
    case FileKind::Native: return Translatable("native program");
    case FileKind::Script: return Translatable("script");
    case FileKind::Dos: return Translatable("DOS program");
    case FileKind::Windows16: return Translatable("16-bit Windows program");
    case FileKind::Windows32: return Translatable("32-bit Windows program");
    case FileKind::Windows64: return Translatable("64-bit Windows program");
    case FileKind::WindowsFile: return Translatable("file for Windows");
    case FileKind::Broken: break;
  }
  return Translatable("broken program");
}

}  // namespace orvanta
