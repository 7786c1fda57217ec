#include "platform/desktop/Display.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <string>

#include "platform/desktop/Descriptor.h"

namespace orvanta {
namespace {

std::string Variable(const char* name) {
  const char* const value = std::getenv(name);
  return value ? value : "";
}

bool HasXServer() {
  if (Variable("DISPLAY").empty()) return false;
  const std::unique_ptr<xcb_connection_t, void (*)(xcb_connection_t*)> connection(
      xcb_connect(nullptr, nullptr), xcb_disconnect);
  return xcb_connection_has_error(connection.get()) == 0;
}

/// The name is a socket in `$XDG_RUNTIME_DIR` or an absolute path (wl_display_connect(3)).
bool HasCompositor() {
  std::string path = Variable("WAYLAND_DISPLAY");
  if (path.empty()) return false;
  if (!path.starts_with('/')) path.insert(0, Variable("XDG_RUNTIME_DIR") + "/");
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  if (path.size() >= sizeof address.sun_path) return false;
  path.copy(address.sun_path, path.size());
  const Descriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
  return ::connect(socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
}

}  // namespace

bool HasDisplay() {
  const std::string platform = Variable("QT_QPA_PLATFORM");
  const bool needsOne = platform.empty() || platform.starts_with("xcb") || platform.starts_with("wayland");
  return !needsOne || HasXServer() || HasCompositor();
}

}  // namespace orvanta
