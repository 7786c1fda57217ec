#pragma once

#include <filesystem>

#include "disctool/check/CheckJob.h"
#include "platform/headless/HeadlessHost.h"
#include "startup/Shell.h"

namespace orvanta {

/// The shell with a disc, on a host without a screen: what its windows show is what a user will see. It gets
/// a folder with the settings but those of entries and, for each picture of the windows, a file of that name;
/// how large the picture is, the check knows.
class ShownDisc {
 public:
  explicit ShownDisc(CheckJob& job);
  ShownDisc(const ShownDisc&) = delete;
  ShownDisc& operator=(const ShownDisc&) = delete;
  ~ShownDisc();

  /// The main window with the first menu. Null if the shell does not get that far.
  const MainForm* Main();
  /// The cinema before its film. Null as above.
  const frmKino* Kino();

 private:
  /// Knows the sizes of pictures from the check.
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
