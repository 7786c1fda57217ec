#pragma once

#include <QImage>

#include "platform/desktop/window/Fonts.h"
#include "platform/headless/HeadlessHost.h"

namespace orvanta {

/// A host on a virtual clock whose windows can be pictured: it reads pictures and fonts with Qt, as the
/// desktop's does. Needs a `QGuiApplication`, on any platform.
class GalleryHost : public HeadlessHost {
 public:
  using HeadlessHost::HeadlessHost;

  PicturePtr LoadPicture(const std::filesystem::path& file) override;
  void AddFont(const std::filesystem::path& file) override { fonts_.Add(file); }
  void RemoveFont(const std::filesystem::path& file) override { fonts_.Remove(file); }
  /// Plays nothing; a film stands still, with one of its pictures.
  std::unique_ptr<MoviePlayer> MakePlayer(MovieKind kind) override;

  /// The pixels of a picture of this host.
  static QImage ImageOf(const Picture& picture);
  /// The form as it would be painted now; what its outline cuts off is transparent.
  QImage PictureOf(const Form& form) const;

 private:
  PrivateFonts fonts_;
};

}  // namespace orvanta
