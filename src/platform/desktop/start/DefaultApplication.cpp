// GIO finds the application in this process, within milliseconds. The helper scripts of the desktops
// (xdg-mime, xdg-open) may hang, are not always installed, and differ in how they report missing applications
// and unregistered types. And the application that GIO finds is the one that is started, so no start counts
// as a success and then fails in a script.

#include "platform/desktop/start/DefaultApplication.h"

#include <gio/gdesktopappinfo.h>
#include <gio/gio.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <memory>
#include <optional>

#include "platform/ExecutableSearch.h"
#include "platform/desktop/start/ExecLine.h"

namespace orvanta {
namespace {

struct Release {
  void operator()(char* text) const { g_free(text); }
  void operator()(char** texts) const { g_strfreev(texts); }
  void operator()(GKeyFile* file) const { g_key_file_free(file); }
  void operator()(GAppInfo* application) const { g_object_unref(application); }
};

template <class T>
using Owned = std::unique_ptr<T, Release>;
/// A list of strings that a null pointer ends.
using OwnedList = std::unique_ptr<char*, Release>;

std::string Text(const char* text) { return text ? text : ""; }

/// As many bytes as the signatures in the database of types need.
std::string Beginning(const std::filesystem::path& file) {
  constexpr std::streamsize Enough = 4096;
  std::string bytes(Enough, '\0');
  std::ifstream stream(file, std::ios::binary);
  stream.read(bytes.data(), Enough);
  bytes.resize(static_cast<std::size_t>(std::max<std::streamsize>(stream.gcount(), 0)));
  return bytes;
}

/// Whether the list in `path` names an application for the type, or for a more general one.
bool ListRegisters(const std::string& path, const std::string& type) {
  const Owned<GKeyFile> list(g_key_file_new());
  if (!g_key_file_load_from_file(list.get(), path.c_str(), G_KEY_FILE_NONE, nullptr)) return false;
  for (const char* group : {"Default Applications", "Added Associations", "MIME Cache"}) {
    const OwnedList keys(g_key_file_get_keys(list.get(), group, nullptr, nullptr));
    for (char** key = keys.get(); key && *key; ++key) {
      // Every file consists of octets, but that does not make an application suitable for it.
      const bool general = std::string_view(*key) == "application/octet-stream" && type != *key;
      if (general || !g_content_type_is_a(type.c_str(), *key)) continue;
      const Owned<char> names(g_key_file_get_string(list.get(), group, *key, nullptr));
      if (!Text(names.get()).empty()) return true;
    }
  }
  return false;
}

/// GIO skips applications that are not installed, so its lists show whether any was registered. The lists of
/// single desktops (gnome-mimeapps.list) are left out: they suggest applications whether they are installed
/// or not.
bool IsRegistered(const std::string& type) {
  std::vector<std::string> folders{g_get_user_config_dir(), Text(g_get_user_data_dir()) + "/applications"};
  for (const char* const* folder = g_get_system_config_dirs(); *folder; ++folder)
    folders.emplace_back(*folder);
  for (const char* const* folder = g_get_system_data_dirs(); *folder; ++folder)
    folders.push_back(Text(*folder) + "/applications");
  return std::ranges::any_of(folders, [&](const std::string& folder) {
    return ListRegisters(folder + "/mimeapps.list", type) || ListRegisters(folder + "/defaults.list", type) ||
           ListRegisters(folder + "/mimeinfo.cache", type);
  });
}

std::string Uri(const OpenTarget& target) {
  if (target.isAddress) return target.place;
  const Owned<char> uri(g_filename_to_uri(target.place.c_str(), nullptr, nullptr));
  return uri ? uri.get() : target.place;
}

/// The entry's command line for the target; empty if the entry is malformed.
std::vector<std::string> CommandOf(GAppInfo& application, const OpenTarget& target) {
  int count = 0;
  char** parsed = nullptr;
  const char* line = g_app_info_get_commandline(&application);
  if (!line || !g_shell_parse_argv(line, &count, &parsed, nullptr)) return {};
  const OwnedList words(parsed);
  GDesktopAppInfo* entry = G_DESKTOP_APP_INFO(&application);
  const Owned<char> icon(g_desktop_app_info_get_string(entry, "Icon"));
  return ExpandExec({parsed, parsed + count}, {.path = target.place,
                                               .uri = Uri(target),
                                               .icon = Text(icon.get()),
                                               .name = Text(g_app_info_get_name(&application)),
                                               .entry = Text(g_desktop_app_info_get_filename(entry))});
}

std::optional<std::vector<std::string>> Terminal(std::string_view searchPath) {
  using Command = std::vector<std::string>;
  for (Command command :
       {Command{"xdg-terminal-exec"}, Command{"x-terminal-emulator", "-e"}, Command{"xterm", "-e"}})
    if (const auto path = FindExecutable(command.front(), searchPath)) {
      command.front() = *path;
      return command;
    }
  return std::nullopt;
}

}  // namespace

OpenTarget FolderTarget(const std::filesystem::path& folder) { return {"inode/directory", folder, false}; }

OpenTarget FileTarget(const std::filesystem::path& file) {
  const std::string bytes = Beginning(file);
  const auto* data = reinterpret_cast<const unsigned char*>(bytes.data());
  const Owned<char> type(g_content_type_guess(file.filename().c_str(), data, bytes.size(), nullptr));
  return {Text(type.get()), file, false};
}

OpenTarget AddressTarget(std::string_view scheme, std::string_view address) {
  return {"x-scheme-handler/" + std::string(scheme), std::string(address), true};
}

ApplicationCommand FindApplication(const OpenTarget& target, std::string_view searchPath) {
  using State = ApplicationCommand::State;
  const Owned<GAppInfo> application(g_app_info_get_default_for_type(target.type.c_str(), FALSE));
  if (!application) return {IsRegistered(target.type) ? State::Missing : State::NotRegistered, {}};
  std::vector<std::string> arguments = CommandOf(*application, target);
  if (arguments.empty()) return {State::Missing, {}};
  const auto program = FindExecutable(arguments.front(), searchPath);
  if (!program) return {State::Missing, {}};
  arguments.front() = *program;
  if (g_desktop_app_info_get_boolean(G_DESKTOP_APP_INFO(application.get()), "Terminal")) {
    const auto terminal = Terminal(searchPath);
    if (!terminal) return {State::Missing, {}};
    arguments.insert(arguments.begin(), terminal->begin(), terminal->end());
  }
  return {State::Found, std::move(arguments)};
}

}  // namespace orvanta
