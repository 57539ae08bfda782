#include "shell/host_options.h"

#include <array>
#include <charconv>
#include <functional>
#include <string_view>

namespace coilrun {
namespace {

constexpr int kMostFps = 1000;

/// Takes the value of an option; false when it makes no sense.
using TakeValue = bool (*)(HostOptions&, const std::string&);

struct ValueOption {
  std::string_view name;
  TakeValue take;
};

struct FlagOption {
  std::string_view name;
  bool HostOptions::*flag;
};

template <typename Number>
bool ParseNumber(const std::string& text, Number& number) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc{} && end == text.data() + text.size();
}

bool TakeFps(HostOptions& options, const std::string& value) {
  return ParseNumber(value, options.fps) && options.fps >= 1 && options.fps <= kMostFps;
}

bool TakeRivals(HostOptions& options, const std::string& value) {
  options.rivals = RivalsFromText(value);
  return options.rivals.has_value();
}

constexpr std::array<FlagOption, 6> kFlags = {{{"--windowed", &HostOptions::windowed},
                                               {"--classic", &HostOptions::classic},
                                               {"--watch", &HostOptions::watch},
                                               {"--headless", &HostOptions::headless},
                                               {"--help", &HostOptions::help},
                                               {"--version", &HostOptions::version}}};

constexpr std::array<ValueOption, 7> kValues = {{
    {"--data", [](HostOptions& options,
                  const std::string& value) { return !(options.data = value)->empty(); }},
    {"--user", [](HostOptions& options,
                  const std::string& value) { return !(options.user = value)->empty(); }},
    {"--script", [](HostOptions& options,
                    const std::string& value) { return !(options.script = value)->empty(); }},
    {"--trace", [](HostOptions& options,
                   const std::string& value) { return !(options.trace = value)->empty(); }},
    {"--fps", TakeFps},
    {"--rivals", TakeRivals},
    {"--seed", [](HostOptions& options,
                  const std::string& value) { return ParseNumber(value, options.seed); }},
}};

template <typename Options>
auto FindOption(const Options& known, std::string_view name) -> decltype(&known[0]) {
  for (const auto& option : known) {
    if (option.name == name) return &option;
  }
  return nullptr;
}

std::string Unfit(const HostOptions& options) {
  if (options.help || options.version) return {};
  if (options.watch && options.commandLine.find("/L=") == std::string::npos) {
    return "--watch needs /L=LEVEL";
  }
  if (options.headless) return {};
  if (options.script) return "--script needs --headless";
  if (options.trace) return "--trace needs --headless";
  return {};
}

}  // namespace

std::variant<HostOptions, std::string> ParseHostOptions(const std::vector<std::string>& arguments) {
  HostOptions options;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    if (!argument.starts_with("--")) {
      if (!options.commandLine.empty()) options.commandLine += ' ';
      options.commandLine += argument;
    } else if (const FlagOption* flag = FindOption(kFlags, argument)) {
      options.*(flag->flag) = true;
    } else if (const ValueOption* value = FindOption(kValues, argument)) {
      if (i + 1 == arguments.size()) return argument + " needs a value";
      const std::string& text = arguments[++i];
      if (!value->take(options, text)) return argument + " cannot be \"" + text + "\"";
    } else {
      return "unknown option " + argument;
    }
  }
  if (std::string fault = Unfit(options); !fault.empty()) return fault;
  return options;
}

std::string HelpText() {
  return "Usage: coilrun [OPTION]... [/SWITCH]...\n"
         "\n"
         "The game:\n"
         "  /L=lvl3.dat      start with this level from the lvl folder\n"
         "  /AIS=N           N computer snakes (0 to 15)\n"
         "  /DM              deathmatch against the computer snakes\n"
         "  /H               hunting, a variant of deathmatch (with /DM)\n"
         "  /Limit=N         the frags, or the length when hunting, that win a match\n"
         "  /KM=US, /KM=DE   keyboard layout for typed text\n"
         "  /NoClean=True    keep the unpacked files at exit\n"
         "  /Debug           show what is going on\n"
         "\n"
         "The machine:\n"
         "  --data DIR       the program folder (lvl, gfx.snr, models, music)\n"
         "  --user DIR       where settings and unpacked files are kept\n"
         "  --windowed       play in a window instead of full screen\n"
         "  --rivals KIND    classic, clever or master computer snakes in this run; a list\n"
         "                   (classic,master) is dealt out in turn\n"
         "  --watch          reload the level given by /L= whenever its file is saved\n"
         "  --classic        play the classic game: ignore the settings in [More] and [Keys]\n"
         "  --headless       no window, no sound, virtual time\n"
         "  --script FILE    the script that plays a headless run (- is standard input)\n"
         "  --trace FILE     where a headless run writes its state lines\n"
         "  --fps N          frames per virtual second (1 to 1000, default 100)\n"
         "  --seed N         seed of the random numbers (default 0)\n"
         "  --help, --version\n";
}

}  // namespace coilrun
