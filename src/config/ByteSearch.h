#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

#if defined(__x86_64__) && !defined(ORVANTA_PORTABLE_SEARCH)
#include <immintrin.h>
#endif

namespace orvanta {

/// Whether `char` has a sign does not matter: bytes from 0x80 on are not ASCII.
constexpr bool IsVisibleAscii(char c) { return static_cast<signed char>(c) > ' '; }

/// Whether two ASCII letters are equal, ignoring case. Some other characters pass as well.
constexpr bool IsSameLetter(char a, char b) { return ((a ^ b) & ~0x20) == 0; }

/// The bytes that may precede a byte that is searched for: a given letter in either case, or any byte that is
/// not a visible ASCII character. This rules out most candidates cheaply, so that few have to be examined one
/// by one.
struct PrecededBy {
  char letter;
  bool operator()(char before) const { return !IsVisibleAscii(before) || IsSameLetter(before, letter); }
};

/// Any byte may precede it; for candidates that are rare.
struct Anywhere {
  bool operator()(char) const { return true; }
};

/// The first of the bytes `kBytes` in [begin, end) that `accept(const char*)` accepts, or `end`. Candidates
/// are offered in order and at most once. Those preceded by a byte that `mayPrecede` rejects may be left out,
/// which only saves work: `accept` decides, and must reject them too.
///
/// Calls std::memchr for each of the bytes and takes the nearest find first.
template <char... kBytes, class Before, class Accept>
const char* FindPortably(const char* begin, const char* end, Before mayPrecede, Accept accept) {
  const auto find = [end](const char* at, char byte) {
    if (at == end) return end;
    const void* found = std::memchr(at, byte, static_cast<std::size_t>(end - at));
    return found ? static_cast<const char*>(found) : end;
  };
  constexpr std::array kWanted{kBytes...};
  std::array nearest{find(begin, kBytes)...};
  for (;;) {
    const auto first = std::min_element(nearest.begin(), nearest.end());
    if (*first == end || ((*first == begin || mayPrecede((*first)[-1])) && accept(*first))) return *first;
    *first = find(*first + 1, kWanted[static_cast<std::size_t>(first - nearest.begin())]);
  }
}

#if defined(__x86_64__) && !defined(ORVANTA_PORTABLE_SEARCH)

template <char... kBytes>
[[gnu::target("avx2")]] inline __m256i MatchesAvx2(const char* at) {
  const __m256i bytes = _mm256_loadu_si256(reinterpret_cast<const __m256i_u*>(at));
  __m256i found = _mm256_setzero_si256();
  ((found = _mm256_or_si256(found, _mm256_cmpeq_epi8(bytes, _mm256_set1_epi8(kBytes)))), ...);
  return found;
}

/// The byte before each of the 32 at `at`; a zero before the one at `begin`.
[[gnu::target("avx2")]] inline __m256i BeforeAvx2(const char* at, const char* begin) {
  if (at != begin) return _mm256_loadu_si256(reinterpret_cast<const __m256i_u*>(at - 1));
  const __m256i bytes = _mm256_loadu_si256(reinterpret_cast<const __m256i_u*>(at));
  return _mm256_alignr_epi8(bytes, _mm256_permute2x128_si256(bytes, bytes, 0x08), 15);
}

[[gnu::target("avx2")]] inline __m256i AllowedAvx2(__m256i before, PrecededBy wanted) {
  const __m256i other = _mm256_xor_si256(before, _mm256_set1_epi8(wanted.letter));
  const __m256i same = _mm256_cmpeq_epi8(_mm256_and_si256(other, _mm256_set1_epi8(~0x20)), __m256i{});
  return _mm256_or_si256(same, _mm256_cmpgt_epi8(_mm256_set1_epi8(' ' + 1), before));
}

[[gnu::target("avx2")]] inline __m256i AllowedAvx2(__m256i, Anywhere) { return _mm256_set1_epi8(-1); }

/// One bit for each of 64 bytes.
[[gnu::target("avx2")]] inline std::uint64_t BitsAvx2(__m256i low, __m256i high) {
  const std::uint64_t upper = static_cast<std::uint32_t>(_mm256_movemask_epi8(high));
  return upper << 32 | static_cast<std::uint32_t>(_mm256_movemask_epi8(low));
}

template <class Accept>
const char* FirstAccepted(const char* at, std::uint64_t candidates, Accept& accept) {
  for (; candidates != 0; candidates &= candidates - 1) {
    if (const char* candidate = at + std::countr_zero(candidates); accept(candidate)) return candidate;
  }
  return nullptr;
}

/// The same as FindPortably, 128 bytes at a time.
template <char... kBytes, class Before, class Accept>
[[gnu::target("avx2")]] const char* FindWithAvx2(const char* begin, const char* end, Before mayPrecede,
                                                 Accept accept) {
  const char* const stop = begin + (end - begin) / 128 * 128;
  for (const char* at = begin; at != stop; at += 128) {
    const __m256i a = MatchesAvx2<kBytes...>(at), b = MatchesAvx2<kBytes...>(at + 32);
    const __m256i c = MatchesAvx2<kBytes...>(at + 64), d = MatchesAvx2<kBytes...>(at + 96);
    if (_mm256_movemask_epi8(_mm256_or_si256(_mm256_or_si256(a, b), _mm256_or_si256(c, d))) == 0) continue;
    const auto allowed = [&](const char* place, __m256i found) __attribute__((target("avx2"))) {
      return _mm256_and_si256(found, AllowedAvx2(BeforeAvx2(place, begin), mayPrecede));
    };
    const char* found = FirstAccepted(at, BitsAvx2(allowed(at, a), allowed(at + 32, b)), accept);
    if (!found) {
      found = FirstAccepted(at + 64, BitsAvx2(allowed(at + 64, c), allowed(at + 96, d)), accept);
    }
    if (!found) continue;
    _mm256_zeroupper();  // GCC 12 omits it here, and the code that follows would run at half the speed
    return found;
  }
  return FindPortably<kBytes...>(stop, end, mayPrecede, accept);
}

#endif

/// Uses the fastest search that the processor supports. Vectors pay off because they do not start again after
/// each candidate; a catalogue has one in every 40 to 500 bytes.
template <char... kBytes, class Before, class Accept>
const char* FindAccepted(const char* begin, const char* end, Before mayPrecede, Accept accept) {
#if defined(__x86_64__) && !defined(ORVANTA_PORTABLE_SEARCH)
  if (__builtin_cpu_supports("avx2")) return FindWithAvx2<kBytes...>(begin, end, mayPrecede, accept);
#endif
  return FindPortably<kBytes...>(begin, end, mayPrecede, accept);
}

}  // namespace orvanta
