#pragma once

#include <QImage>

#include "platform/desktop/window/Fonts.h"
#include "platform/headless/HeadlessHost.h"

namespace orvanta {

/// A host with a virtual clock that can take screenshots of its windows. It reads pictures and fonts with Qt,
/// as the desktop host does. Needs a `QGuiApplication` with any platform plugin.
class GalleryHost : public HeadlessHost {
 public:
  using HeadlessHost::HeadlessHost;

  PicturePtr LoadPicture(const std::filesystem::path& file) override;
  void AddFont(const std::filesystem::path& file) override { fonts_.Add(file); }
  void RemoveFont(const std::filesystem::path& file) override { fonts_.Remove(file); }
  /// The player plays nothing; a film shows one picture.
  std::unique_ptr<MoviePlayer> MakePlayer(MovieKind kind) override;

  /// The pixels of a picture of this host.
  static QImage ImageOf(const Picture& picture);
  /// A screenshot of the form; what its outline cuts off is transparent.
  QImage PictureOf(const Form& form) const;

 private:
  PrivateFonts fonts_;
};

}  // namespace orvanta
