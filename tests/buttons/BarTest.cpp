// The bar of ten: art, places and which buttons are there.

#include <gtest/gtest.h>

#include "support/EntryDisc.h"

namespace orvanta::test {
namespace {

const std::vector<std::string> kArt = {"ext",   "snd1", "snd2", "hlp", "start",
                                       "pauza", "stop", "info", "min", "pokaz"};
const std::vector<std::string> kKeys = {"ext",   "snd1", "snd2", "hlp", "Start",
                                        "Pauza", "Stop", "Info", "Min", "Pokaz"};
const std::vector<std::string> kPrefixes = {"Ext",   "Snd1", "Snd2", "Hlp", "Start",
                                            "Pauza", "Stop", "Info", "Min", "Pokaz"};

/// The indices of the buttons that are there, as text.
std::string There(MainForm& form) {
  std::string text;
  form.ButtonM.ForEach([&](const Image& button) {
    if (button.Visible) text += std::to_string(button.Index);
  });
  return text;
}

std::string NameOf(const PicturePtr& picture) {
  const auto* file = dynamic_cast<const PictureFile*>(picture.get());
  return file ? file->name : "";
}

TEST(Bar, TakesArtAndPlacesFromTheDisc) {
  TestDisc disc;
  for (int i = 0; i < 10; ++i) {
    disc.Set("GLOBAL", kPrefixes[static_cast<std::size_t>(i)] + "X", std::to_string(40 + 50 * i));
    disc.Set("GLOBAL", kPrefixes[static_cast<std::size_t>(i)] + "Y", std::to_string(70 + i));
  }
  disc.Picture("hlp1.gif", 50, 60);
  TestShell user(disc);
  user.Start();
  MainForm& form = user.Main();
  ASSERT_EQ(form.ImageList1.Count(), 30);
  for (int i = 0; i < 10; ++i) {
    const std::string art = kArt[static_cast<std::size_t>(i)];
    for (int look = 0; look < 3; ++look) {
      EXPECT_EQ(NameOf(form.ImageList1(i * 3 + 1 + look)), art + std::to_string(look) + ".gif");
    }
    EXPECT_EQ(form.ImageList1(kKeys[static_cast<std::size_t>(i)]), form.ImageList1(i * 3 + 1));
    const Image& button = form.ButtonM(i);
    EXPECT_EQ(Shown(button), art + "0.gif");
    EXPECT_EQ(button.Bounds(), (Rect{40 + 50 * i, 70 + i, 36, 24}));
    EXPECT_EQ(button.MouseIcon(), Pointer::Hand);
  }
  user.host.MoveMouse(user.MiddleOf(form.ButtonM(3)));
  user.Run(100);
  EXPECT_EQ(form.ButtonM(3).Bounds(), (Rect{190, 73, 50, 60})) << "the size follows the picture";
}

TEST(Bar, ShowsTheButtonsOfEachView) {
  for (const bool soundCard : {true, false}) {
    const std::string pair = soundCard ? "1" : "2";
    for (const auto& [line, expected] : {std::pair{EntryDisc::kMenu, "78"},
                                         {EntryDisc::kProgram, "478"},
                                         {EntryDisc::kMusic, "45678"},
                                         {EntryDisc::kFilm, "789"}}) {
      EntryDisc disc;
      TestShell user(disc);
      user.host.soundCard = soundCard;
      EntryDisc::Begin(user, line);
      const std::string all = std::string("0") + pair + "3" + expected;
      EXPECT_EQ(There(user.Main()), all);
      EXPECT_EQ(user.Main().ButtonM(1).Enabled(), soundCard);
      EXPECT_EQ(user.Main().ButtonM(2).Enabled(), !soundCard);
      EXPECT_EQ(Shown(user.Main().ButtonM(soundCard ? 2 : 1)), soundCard ? "snd20.gif" : "snd10.gif");
      user.Click(user.Main().imgUp);
      EXPECT_EQ(There(user.Main()), "0" + pair + "378");
    }
  }
}

TEST(Bar, CanBeUsedWithoutItsArt) {
  TestDisc disc;
  disc.Remove("GLOBAL", "MinB"), disc.Remove("GLOBAL", "MinX");
  std::filesystem::remove(disc.Data() / "ext2.gif");
  TestShell user(disc);
  user.Start();
  EXPECT_DOUBLE_EQ(user.Main().ButtonM(8).Left, 0);
  user.Click(user.Main().ButtonM(0));
  user.Run(3000);
  EXPECT_TRUE(user.ended);
}

}  // namespace
}  // namespace orvanta::test
