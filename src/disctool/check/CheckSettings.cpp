// Checks the fixed sections against the table of keys.

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

#include "config/Values.h"
#include "config/Windows1250.h"
#include "disctool/check/CheckJob.h"

namespace orvanta {
namespace {

/// Whether this disc needs the key.
enum class Asked { Yes, NotYet, Never };

Asked IsAsked(const CheckJob& job, const SchemaKey& key) {
  const auto asked = [](bool now) { return now ? Asked::Yes : Asked::NotYet; };
  const auto manyShots = [](const MenuNode& node) { return node.kind != NodeKind::Menu && node.shots > 3; };
  if (key.name == "ProducerX" || key.name == "ProducerY")
    return job.catalogue.Find("GLOBAL", "ProducerB") ? Asked::Yes : Asked::Never;
  if (key.name == "UnderPic" || (key.section == "VOICES" && key.name == "Start"))
    return job.catalogue.Find("GLOBAL", "StartPic") ? Asked::Yes : Asked::Never;
  if (key.section == "CINEMA") return asked(job.tree.Has(NodeKind::Film));
  if (key.section == "SHOTSLIDER") return asked(std::ranges::any_of(job.tree.nodes, manyShots));
  if (key.name.starts_with("S2_")) return asked(job.tree.Has(NodeKind::Music));
  return Asked::Yes;
}

void Missing(CheckJob& job, const SchemaKey& key) {
  const Asked asked = IsAsked(job, key);
  const DiscPlace place = job.catalogue.PlaceOf(key.section);
  const std::string text = Translated("%1 is missing", Naming(key.section, key.name));
  if (asked == Asked::Yes) job.findings.Error(place, "missing-key", text);
  if (asked == Asked::NotYet)
    job.findings.Warning(place, "missing-key", text + Translated("; no entry of this disc needs it yet"));
}

void NoNumber(CheckJob& job, const SchemaKey& key, const Setting& found) {
  job.findings.Error(
      found.place, "no-number",
      Translated("%1 is not a number: '%2' counts as 0", Naming(key.section, key.name), found.value));
}

void WholeNumber(CheckJob& job, const SchemaKey& key, const Setting& found) {
  const double value = DoubleOf(found.value);
  const std::int16_t taken = WholeOf(found.value);
  if (std::abs(value - taken) >= 1) {
    job.findings.Error(found.place, "out-of-range",
                       Translated("%1 is outside the range -32768 to 32767: '%2' counts as %3",
                                  Naming(key.section, key.name), found.value, taken));
  } else if (value != taken) {
    job.findings.Warning(found.place, "rounded",
                         Translated("%1 is not a whole number: '%2' counts as %3",
                                    Naming(key.section, key.name), found.value, taken));
  }
}

void Malformed(CheckJob& job, const SchemaKey& key, const Setting& found) {
  const bool number = IsNumber(found.value);
  switch (key.kind) {
    case Kind::Whole: return number ? WholeNumber(job, key, found) : NoNumber(job, key, found);
    case Kind::Single:
    case Kind::Double:
      if (!number) NoNumber(job, key, found);
      return;
    case Kind::Colour:
      if (!number) return NoNumber(job, key, found);
      if (const double value = DoubleOf(found.value);
          value < 0 || value > 0xFFFFFF || value != std::floor(value))
        job.findings.Error(found.place, "no-colour",
                           Translated("%1 is not a colour from 0 to 16777215: '%2'",
                                      Naming(key.section, key.name), found.value));
      return;
    case Kind::Boolean:
      if (!number && !EqualNoCase(found.value, "True") && !EqualNoCase(found.value, "False"))
        job.findings.Error(found.place, "no-boolean",
                           Translated("%1 is neither True nor False nor a number: '%2' counts as False",
                                      Naming(key.section, key.name), found.value));
      return;
    default: return;
  }
}

bool IsNoSection(const CheckJob& job, std::string_view section) { return !job.catalogue.HasSection(section); }

/// One finding for a missing section instead of one for each of its keys.
void MissingSection(CheckJob& job, std::string_view section) {
  const auto mandatory = [&](const SchemaKey& key) {
    return key.section == section && key.presence == Presence::Mandatory;
  };
  const auto keys = std::ranges::count_if(kSchema, mandatory);
  const bool asked = std::ranges::any_of(
      kSchema, [&](const SchemaKey& key) { return mandatory(key) && IsAsked(job, key) == Asked::Yes; });
  const std::string text = TranslatedCount("there is no section [%2], which has one mandatory key",
                                           "there is no section [%2], which has %1 mandatory keys",
                                           static_cast<std::size_t>(keys), section);
  const DiscPlace place = job.catalogue.PlaceOf(section);
  if (asked) return job.findings.Error(place, "missing-section", text);
  job.findings.Warning(place, "missing-section", text + Translated("; no entry of this disc needs it yet"));
}

/// Finds sizes for which something cannot be seen or used.
void Senseless(CheckJob& job) {
  const auto positive = [&](std::string_view section, std::string_view key, const char* what) {
    const Setting found = job.catalogue.Find(section, key);
    if (found && IsNumber(found.value) && DoubleOf(found.value) < 1)
      job.findings.Warning(found.place, "senseless",
                           Translated("%1 is %2: %3", Naming(section, key), found.value, Translated(what)));
  };
  for (const char* zone : {"BackW", "BackH", "UpW", "UpH", "Back2W", "Back2H", "Up2W", "Up2H"})
    positive("GLOBAL", zone, Translatable("it could not be clicked"));
  for (const char* section : {"HEADLINE", "MENUITEM"})
    positive(section, "FontSize", Translatable("it could not be read"));
  positive("GLOBAL", "MenuLevels", Translatable("no item of the first menu could be opened"));
}

}  // namespace

void CheckSettings(CheckJob& job) {
  std::string_view section;
  for (const SchemaKey& key : kSchema) {
    if (key.section == kNodeSection) continue;
    const bool isNew = key.section != std::exchange(section, key.section);
    if (IsNoSection(job, key.section)) {
      if (isNew) MissingSection(job, key.section);
      continue;
    }
    if (key.presence == Presence::Run) continue;
    if (const Setting found = job.Find(key)) {
      Malformed(job, key, found);
    } else if (key.presence == Presence::Mandatory) {
      Missing(job, key);
    }
  }
  Senseless(job);
}

}  // namespace orvanta
