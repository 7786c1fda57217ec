#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <string>

#include "launcher/ExecErrorText.h"

namespace orvanta {
namespace {

std::string Shown(int number, const std::string& message) {
  return "UWAGA: wystąpił błąd numer " + std::to_string(number) + "\r\n\r\n" + message;
}

// A number beside the wrong message, or a message lost, would send the user on the wrong track.
TEST(ExecErrorText, EachKnownFailureShowsItsNumberAndMessage) {
  const std::string noApplication = "Podany typ pliku nie posiada przyporządkowanej aplikacji.";
  const std::map<std::int32_t, std::string> expected = {
      {0, Shown(7, "Brak pamięci.")},
      {2, Shown(53, "Nie znaleziono podanego pliku.")},
      {3, Shown(76, "Nie znaleziono podanej ścieżki.")},
      {5, Shown(75, "Błąd dostępu do ścieżki lub pliku.")},
      {8, Shown(7, "Brak pamięci.")},
      {11, Shown(-2147220445, "Program, który miał być uruchomiony, jest nieprawidłowy lub uszkodzony.")},
      {26, Shown(75, "Błąd prawa dostępu do pliku.")},
      {27, Shown(-2147220429, noApplication)},
      {28, Shown(286, "Przekroczono limit czasu dla próby otwarcia pliku. Spróbuj uruchomić go za chwilę.")},
      {29,
       Shown(285,
             "Plik nie może być otwarty, z powodu błędu transakcji DDE.  Spróbuj uruchomić go za chwilę.")},
      {30, Shown(285,
                 "Plik nie może być otwarty, bowiem przyporządkowana aplkacja jest zajęta. Spróbuj uruchomić "
                 "go za chwilę.")},
      {31, Shown(-2147220425, noApplication)},
      {32, Shown(48, "Wskazana biblioteka DLL nie została znaleziona.")},
  };
  for (const auto& [code, text] : expected) EXPECT_EQ(ExecErrorText(code), text) << code;
}

TEST(ExecErrorText, AnyOtherFailureIsUnknownAndShowsANegativeNumber) {
  EXPECT_EQ(ExecErrorText(1), Shown(-2147220455, "Przy próbie otwarcia pliku wystąpił nieznany błąd."));
  EXPECT_EQ(ExecErrorText(4), Shown(-2147220452, "Przy próbie otwarcia pliku wystąpił nieznany błąd."));
  EXPECT_EQ(ExecErrorText(25), Shown(-2147220431, "Przy próbie otwarcia pliku wystąpił nieznany błąd."));
}

TEST(ExecErrorText, ASuccessfulStartSaysNothing) {
  for (const std::int32_t code :
       {33, 42, std::numeric_limits<std::int32_t>::max(), -1, std::numeric_limits<std::int32_t>::min()})
    EXPECT_FALSE(ExecErrorText(code).has_value()) << code;
}

}  // namespace
}  // namespace orvanta
