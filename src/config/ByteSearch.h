#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

#if defined(__SSE2__) && !defined(ORVANTA_PORTABLE_SEARCH)
#include <immintrin.h>
#endif

namespace orvanta {

/// The first of the bytes `kBytes` in [begin, end) that `accept(const char*)` takes, else `end`. Candidates
/// are offered in their order, each once.
///
/// One std::memchr for each byte, the nearest find first.
template <char... kBytes, class Accept>
const char* FindPortably(const char* begin, const char* end, Accept accept) {
  const auto find = [end](const char* at, char byte) {
    if (at == end) return end;
    const void* found = std::memchr(at, byte, static_cast<std::size_t>(end - at));
    return found ? static_cast<const char*>(found) : end;
  };
  constexpr std::array kWanted{kBytes...};
  std::array nearest{find(begin, kBytes)...};
  for (;;) {
    const auto first = std::min_element(nearest.begin(), nearest.end());
    if (*first == end || accept(*first)) return *first;
    *first = find(*first + 1, kWanted[static_cast<std::size_t>(first - nearest.begin())]);
  }
}

#if defined(__SSE2__) && !defined(ORVANTA_PORTABLE_SEARCH)

template <char... kBytes>
__m128i MatchesSse2(const char* at) {
  const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
  __m128i found = _mm_setzero_si128();
  ((found = _mm_or_si128(found, _mm_cmpeq_epi8(bytes, _mm_set1_epi8(kBytes)))), ...);
  return found;
}

inline std::uint64_t BitsSse2(__m128i found) { return static_cast<unsigned>(_mm_movemask_epi8(found)); }

/// The same with SSE2, which every x86-64 has, 64 bytes a step.
template <char... kBytes, class Accept>
const char* FindWithSse2(const char* begin, const char* end, Accept accept) {
  const char* at = begin;
  for (; end - at >= 64; at += 64) {
    const __m128i a = MatchesSse2<kBytes...>(at), b = MatchesSse2<kBytes...>(at + 16);
    const __m128i c = MatchesSse2<kBytes...>(at + 32), d = MatchesSse2<kBytes...>(at + 48);
    if (BitsSse2(_mm_or_si128(_mm_or_si128(a, b), _mm_or_si128(c, d))) == 0) continue;
    std::uint64_t candidates = BitsSse2(a) | BitsSse2(b) << 16 | BitsSse2(c) << 32 | BitsSse2(d) << 48;
    do {
      const char* candidate = at + std::countr_zero(candidates);
      if (accept(candidate)) return candidate;
      candidates &= candidates - 1;
    } while (candidates != 0);
  }
  return FindPortably<kBytes...>(at, end, accept);
}

#endif

/// The fastest of the ways. Vectors pay because they need not begin anew behind each candidate, of which a
/// catalogue has one in 40 to 300 bytes.
template <char... kBytes, class Accept>
const char* FindAccepted(const char* begin, const char* end, Accept accept) {
#if defined(__SSE2__) && !defined(ORVANTA_PORTABLE_SEARCH)
  return FindWithSse2<kBytes...>(begin, end, accept);
#else
  return FindPortably<kBytes...>(begin, end, accept);
#endif
}

}  // namespace orvanta
