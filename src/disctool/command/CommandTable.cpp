#include "disctool/command/CommandTable.h"

#include <algorithm>

#include "disctool/Translation.h"

namespace orvanta {
namespace {

constexpr OptionInfo kJson{"json", "", Translatable("Write JSON for other programs.")};

constexpr OptionInfo kFrom{
    "from", "FILE",
    Translatable(
        "Read more discs from a list, one per line or each ended by a NUL byte; - is the standard input.")};

constexpr OptionInfo kOpenOptions[] = {
    {"zoom", "N|auto",
     Translatable(
         "Show everything N times as large, from 1 to 8. The default, auto, chooses N to suit the screen.")},
    {"cache-limit", "SIZE",
     Translatable(
         "Keep the unpacked copies below SIZE, such as 500M or 4G; those that were used longest ago go "
         "first. The default is 4G.")},
    {"clear-cache", "",
     Translatable("Remove the unpacked copies of images first. Without DISC, do nothing else.")}};
constexpr ExampleInfo kOpenExamples[] = {{"orvanta-disc open disc.iso", Translatable("Opens an image.")}};

constexpr OptionInfo kInfoOptions[] = {
    kJson,
    kFrom,
    {"hashes", "",
     Translatable(
         "Write the SHA-256 of each image and file, as sha256sum -c and BagIt read it; with --json add "
         "them to the rest.")}};
constexpr ExampleInfo kInfoExamples[] = {
    {"orvanta-disc info disc.iso", Translatable("Shows the most important facts about a disc.")},
    {"find discs -name '*.iso' -print0 | orvanta-disc info --json --from -",
     Translatable("Writes a line of JSON for each image in a folder.")},
    {"orvanta-disc info --hashes data > manifest-sha256.txt",
     Translatable("Writes the manifest of a BagIt bag that holds a disc.")}};

constexpr OptionInfo kCheckOptions[] = {
    kJson,
    kFrom,
    {"sarif", "", Translatable("Write a SARIF log, for editors and continuous integration.")},
    {"deep", "", Translatable("Decode sounds and films whole, to find those that break off. Takes longer.")},
    {"fix", "",
     Translatable(
         "Mend what has one right answer in the configuration files of a folder: encoding, ends of "
         "lines, keys that never count, capitals in the names of files. The old files stay beside the "
         "new ones. Shows what has changed instead of the findings.")},
    {"dry-run", "", Translatable("Show what --fix would change, and change nothing.")},
    {"strict", "", Translatable("Count warnings as errors in the exit status.")},
    {"explain", "ID", Translatable("Explain a kind of finding. ID is the one that --json writes.")}};
constexpr ExampleInfo kCheckExamples[] = {
    {"orvanta-disc check my-disc", Translatable("Lists what is wrong with a disc.")},
    {"orvanta-disc check --strict my-disc && make-image my-disc",
     Translatable("Continues only if there are no findings.")},
    {"orvanta-disc check --dry-run my-disc", Translatable("Shows what --fix would mend.")}};

constexpr OptionInfo kTreeOptions[] = {kJson, kFrom};
constexpr ExampleInfo kTreeExamples[] = {{"orvanta-disc tree disc.iso", Translatable("Lists the menus.")}};

constexpr OptionInfo kFindOptions[] = {kJson, kFrom};
constexpr ExampleInfo kFindExamples[] = {
    {"orvanta-disc find 'atlas zolw' *.iso",
     Translatable("Finds what contains both words, with or without Polish letters.")}};

constexpr OptionInfo kDiffOptions[] = {kJson};
constexpr ExampleInfo kDiffExamples[] = {
    {"orvanta-disc diff first.iso second.iso", Translatable("Shows what changed between two pressings.")}};

constexpr ExampleInfo kGalleryExamples[] = {
    {"orvanta-disc gallery disc.iso pictures",
     Translatable("Makes a gallery; open pictures/index.html in a browser.")}};

constexpr ExampleInfo kLibraryExamples[] = {
    {"orvanta-disc library site *.iso", Translatable("Makes a library; open site/index.html in a browser.")},
    {"orvanta-disc library site new.iso", Translatable("Adds a disc to it.")}};

constexpr ExampleInfo kTracksExamples[] = {
    {"orvanta-disc tracks disc.cue music", Translatable("Writes music/track-02.wav and so on.")}};

constexpr OptionInfo kExportOptions[] = {
    {"single-file", "",
     Translatable("Make OUT one HTML file that works from a local disk, for discs under 100 MB.")},
    {"page", "FOLDER",
     Translatable("Take the page's program from FOLDER instead of where it was installed.")}};
constexpr ExampleInfo kExportExamples[] = {
    {"orvanta-disc export disc.iso site",
     Translatable("Makes a page; put the folder site on any web server.")},
    {"orvanta-disc export --single-file disc.iso disc.html",
     Translatable("Makes one file; open it in a browser.")}};

constexpr ExampleInfo kGetExamples[] = {
    {"orvanta-disc get my-disc HEADLINE Caption", Translatable("Writes the title of a disc.")}};

constexpr ExampleInfo kNewExamples[] = {{"orvanta-disc new my-disc", Translatable("Makes a disc.")},
                                        {"orvanta-disc open my-disc", Translatable("Shows it.")}};

constexpr CommandInfo kCommands[] = {
    {"open", "DISC", Translatable("Start the shell with a disc"),
     Translatable("Starts the shell with a disc. A folder is used as it is. An image is unpacked into the "
                  "user's cache once and used again until it changes. Without a terminal, as from a file "
                  "manager, windows show the progress and any problem."),
     kOpenOptions, kOpenExamples},
    {"info", "DISC...", Translatable("Show the most important facts about discs"),
     Translatable(
         "Shows the title, label, dates and size of each disc, its entries by kind, its programs with "
         "what runs them on this machine, the audio tracks of an image, and how much is wrong with it."),
     kInfoOptions, kInfoExamples},
    {"check", "DISC...", Translatable("List everything that is wrong with discs"),
     Translatable("Lists everything that is wrong with each disc, one finding per line, as FILE:LINE: "
                  "error|warning|note: TEXT. Without a line the whole file is meant. A note says what this "
                  "machine lacks; it is not a fault of the disc."),
     kCheckOptions, kCheckExamples},
    {"tree", "DISC...", Translatable("Show the menu tree"),
     Translatable("Lists the menu tree with the kind of each item: menu, program, music, film, or inert for "
                  "an item that does nothing."),
     kTreeOptions, kTreeExamples},
    {"find", "WORDS DISC...", Translatable("Find entries on discs"),
     Translatable(
         "Lists the menus and entries of each disc whose name, description, requirements or program contain "
         "all the words, with their path through the menus. Case and the marks of letters are ignored."),
     kFindOptions, kFindExamples},
    {"diff", "A B", Translatable("Show what changed from one disc to another"),
     Translatable("Lists what differs between two discs or two states of one: settings, menus, texts and "
                  "files. + is new in B, - is only in A, ~ has changed. Pictures are compared by their "
                  "pixels."),
     kDiffOptions, kDiffExamples},
    {"gallery",
     "DISC OUT",
     Translatable("Make a page with screenshots of every view"),
     Translatable(
         "Writes screenshots of every view of a disc and a page, index.html, into OUT: a new or "
         "empty folder, or an earlier gallery, which is renewed. The page shows the disc's texts and "
         "findings beside the screenshots and can be searched. An interrupted gallery is continued "
         "when it is made again. It needs no display."),
     {},
     kGalleryExamples},
    {"library",
     "OUT DISC...",
     Translatable("Make one site over the galleries of many discs"),
     Translatable(
         "Makes a gallery of each disc in OUT and a page, index.html, with their covers and a search "
         "over all of them. Discs that OUT already holds stay; a disc named again is renewed if it "
         "has changed."),
     {},
     kLibraryExamples},
    {"export", "DISC OUT", Translatable("Make a web page that runs the disc"),
     Translatable("Makes a folder that any static web server serves: the disc's own menus, live in a "
                  "browser, with its "
                  "pictures, sounds and films. What browsers cannot play is converted. OUT is a new or empty "
                  "folder, or "
                  "an earlier export, which is renewed."),
     kExportOptions, kExportExamples},
    {"get",
     "DISC SECTION KEY",
     Translatable("Look up a setting"),
     Translatable("Writes a setting as the shell finds it."),
     {},
     kGetExamples},
    {"tracks",
     "DISC OUT",
     Translatable("Write the audio tracks of an image as WAV files"),
     Translatable(
         "Writes each audio track of an image into OUT as a WAV file, named after its number. The image is "
         "named by its sheet: CUE, CCD, MDS or NRG. Files that are there already are kept."),
     {},
     kTracksExamples},
    {"new",
     "DIR",
     Translatable("Make a small complete disc to start from"),
     Translatable("Makes a small complete disc in DIR, a new or empty folder."),
     {},
     kNewExamples},
};

}  // namespace

std::span<const CommandInfo> Commands() { return kCommands; }

const CommandInfo* FindCommand(std::string_view name) {
  const auto found = std::ranges::find(kCommands, name, &CommandInfo::name);
  return found == std::end(kCommands) ? nullptr : found;
}

}  // namespace orvanta
