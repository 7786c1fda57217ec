#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <string>
#include <vector>

#include "Lookups.h"
#include "SampleCatalogue.h"
#include "config/NumberedKey.h"
#include "config/ProfileString.h"

namespace orvanta::bench {
namespace {

using Lookup = std::string (*)(const std::filesystem::path&, std::string_view, std::string_view);

/// Ten calls per sample, so that reading the clock does not matter.
template <class Work>
double Sample(Work work) {
  const auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < 10; ++i) benchmark::DoNotOptimize(work());
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count() / 10;
}

/// The sum of the medians of all rows; there is a row for each key.
double SumOfMedians(std::vector<std::vector<double>> rows) {
  double sum = 0;
  for (auto& row : rows) {
    const auto middle = row.begin() + static_cast<std::ptrdiff_t>(row.size() / 2);
    std::nth_element(row.begin(), middle, row.end());
    sum += *middle;
  }
  return sum;
}

/// Looks up all `keys`, alternating with the physical limit, so that both run under the same conditions.
void AgainstLimit(benchmark::State& state, Lookup lookup, const std::string& text, const char* section,
                  const std::vector<std::string>& keys, std::string_view lastValue) {
  const TemporaryFile file(text);
  if (lookup(file.path(), section, keys.back()) != lastValue) return state.SkipWithError("the wrong value");
  WarmRead limit;
  std::vector<std::vector<double>> limits(keys.size()), ours(keys.size());
  for (auto _ : state) {
    double seconds = 0;
    for (std::size_t i = 0; i < keys.size(); ++i) {
      limits[i].push_back(Sample([&] { return limit(file.path()); }));
      ours[i].push_back(Sample([&] { return lookup(file.path(), section, keys[i]); }));
      seconds += ours[i].back();
    }
    state.SetIterationTime(seconds);
  }
  state.counters["us"] = 1e6 * SumOfMedians(ours);
  state.counters["limit_us"] = 1e6 * SumOfMedians(limits);
  state.counters["x_limit"] = SumOfMedians(ours) / SumOfMedians(limits);
}

void OneKey(benchmark::State& state, Lookup lookup, const char* section, const char* key, const char* value) {
  AgainstLimit(state, lookup, MakeCatalogue(static_cast<std::size_t>(state.range(0))), section, {key}, value);
}

void LongMenu(benchmark::State& state, Lookup lookup, MenuPlace place) {
  std::vector<std::string> keys;
  for (int i = 1; i <= 1001; ++i) keys.push_back(NumberedKey("Menu", i));
  AgainstLimit(state, lookup, MakeCatalogue(200 << 10, place), "MAINMENU", keys, "Program 1001");
}

void Sizes(benchmark::internal::Benchmark* bench) {
  bench->ArgName("bytes")->Arg(4 << 10)->Arg(100 << 10)->Arg(1 << 20)->UseManualTime()->Iterations(300);
}

/// GLib takes 10 ms for a megabyte.
void FewSizes(benchmark::internal::Benchmark* bench) {
  bench->ArgName("bytes")->Arg(4 << 10)->Arg(100 << 10)->Arg(1 << 20)->UseManualTime()->Iterations(10);
}

void Once(benchmark::internal::Benchmark* bench) { bench->UseManualTime()->Iterations(10); }

BENCHMARK_CAPTURE(OneKey, last, &ProfileString, "Last", "Last", "found")->Apply(Sizes);
BENCHMARK_CAPTURE(OneKey, last_getline, &GetlineLookup, "Last", "Last", "found")->Apply(FewSizes);
BENCHMARK_CAPTURE(OneKey, last_glib, &GlibLookup, "Last", "Last", "found")->Apply(FewSizes);
BENCHMARK_CAPTURE(OneKey, missing, &ProfileString, "Last", "None", "")->Apply(Sizes);
BENCHMARK_CAPTURE(OneKey, missing_getline, &GetlineLookup, "Last", "None", "")->Apply(FewSizes);
BENCHMARK_CAPTURE(OneKey, missing_glib, &GlibLookup, "Last", "None", "")->Apply(FewSizes);
BENCHMARK_CAPTURE(OneKey, missing_section, &ProfileString, "None", "None", "")->Apply(Sizes);
BENCHMARK_CAPTURE(OneKey, early, &ProfileString, "GLOBAL", "Early", "found")->Apply(Sizes);
BENCHMARK_CAPTURE(OneKey, early_getline, &GetlineLookup, "GLOBAL", "Early", "found")->Apply(FewSizes);
BENCHMARK_CAPTURE(OneKey, early_glib, &GlibLookup, "GLOBAL", "Early", "found")->Apply(FewSizes);
BENCHMARK_CAPTURE(LongMenu, first, &ProfileString, MenuPlace::First)->Apply(Once);
BENCHMARK_CAPTURE(LongMenu, middle, &ProfileString, MenuPlace::Middle)->Apply(Once);
BENCHMARK_CAPTURE(LongMenu, last, &ProfileString, MenuPlace::Last)->Apply(Once);
BENCHMARK_CAPTURE(LongMenu, last_getline, &GetlineLookup, MenuPlace::Last)->UseManualTime()->Iterations(1);
BENCHMARK_CAPTURE(LongMenu, last_glib, &GlibLookup, MenuPlace::Last)->UseManualTime()->Iterations(1);

}  // namespace
}  // namespace orvanta::bench
