#pragma once

#include <filesystem>

#include "disctool/check/CheckJob.h"
#include "platform/headless/HeadlessHost.h"
#include "startup/Shell.h"

namespace orvanta {

/// The shell with a disc, on a host without a screen: its windows show what a user would see. It gets a
/// folder with all settings except those of entries and, for each picture of the windows, a file of that
/// name. The check knows how large each picture is.
class ShownDisc {
 public:
  explicit ShownDisc(CheckJob& job);
  ShownDisc(const ShownDisc&) = delete;
  ShownDisc& operator=(const ShownDisc&) = delete;
  ~ShownDisc();

  /// The main window with the first menu. Null if the shell fails before.
  const MainForm* Main();
  /// The cinema before its film starts. Null as above.
  const frmKino* Kino();

 private:
  /// A host that gets the sizes of pictures from the check.
  class Host : public HeadlessHost {
   public:
    Host(std::filesystem::path folder, CheckJob& job) : HeadlessHost(std::move(folder)), job_(job) {}
    PicturePtr LoadPicture(const std::filesystem::path& file) override;

   private:
    CheckJob& job_;
  };

  void CopySettings(const CheckJob& job) const;
  void AddPictures(CheckJob& job) const;
  void AddFile(const std::string& path, const std::string& bytes) const;

  const std::filesystem::path folder_;
  Host host_;
  Shell shell_;
};

}  // namespace orvanta
