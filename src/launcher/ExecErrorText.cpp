#include "launcher/ExecErrorText.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace orvanta {
namespace {

/// The greatest result of the document-open call that means failure.
constexpr std::int32_t kLastFailure = 32;
/// A failure without a number of its own shows its code plus this base, which is always negative.
constexpr std::int32_t kObjectErrorBase = -2147220456;

struct Failure {
  std::int32_t code;
  std::int32_t number;
  std::string_view message;
};

constexpr std::array kFailures = {
    Failure{0, 7, "Brak pamięci."},
    Failure{2, 53, "Nie znaleziono podanego pliku."},
    Failure{3, 76, "Nie znaleziono podanej ścieżki."},
    Failure{5, 75, "Błąd dostępu do ścieżki lub pliku."},
    Failure{8, 7, "Brak pamięci."},
    Failure{11, kObjectErrorBase + 11,
            "Program, który miał być uruchomiony, jest nieprawidłowy lub uszkodzony."},
    Failure{26, 75, "Błąd prawa dostępu do pliku."},
    Failure{27, kObjectErrorBase + 27, "Podany typ pliku nie posiada przyporządkowanej aplikacji."},
    Failure{28, 286, "Przekroczono limit czasu dla próby otwarcia pliku. Spróbuj uruchomić go za chwilę."},
    // The two blanks after "DDE." are part of the message.
    Failure{29, 285,
            "Plik nie może być otwarty, z powodu błędu transakcji DDE.  Spróbuj uruchomić go za chwilę."},
    // And so is the spelling "aplkacja".
    Failure{
        30, 285,
        "Plik nie może być otwarty, bowiem przyporządkowana aplkacja jest zajęta. Spróbuj uruchomić go za "
        "chwilę."},
    Failure{31, kObjectErrorBase + 31, "Podany typ pliku nie posiada przyporządkowanej aplikacji."},
    Failure{32, 48, "Wskazana biblioteka DLL nie została znaleziona."},
};

Failure FailureOf(std::int32_t code) {
  const auto known = std::find_if(kFailures.begin(), kFailures.end(),
                                  [code](const Failure& failure) { return failure.code == code; });
  if (known != kFailures.end()) return *known;
  return {code, kObjectErrorBase + code, "Przy próbie otwarcia pliku wystąpił nieznany błąd."};
}

}  // namespace

std::optional<std::string> ExecErrorText(std::int32_t code) {
  if (code < 0 || code > kLastFailure) return std::nullopt;
  const Failure failure = FailureOf(code);
  return "UWAGA: wystąpił błąd numer " + std::to_string(failure.number) + "\r\n\r\n" +
         std::string(failure.message);
}

}  // namespace orvanta
