#include "content/archives.h"

#include <algorithm>
#include <array>
#include <span>

#include "content/lines.h"
#include "content/progress.h"
#include "model/feed.h"

namespace coilrun {
namespace {

constexpr std::string_view kListSuffix = ".snc";
constexpr std::string_view kSeparators = "\\/";

std::string ListPath(std::string_view archive) {
  const std::string_view fileName = archive.substr(archive.find_last_of(kSeparators) + 1);
  return InProgramFolder("\\cleanup-", fileName).append(kListSuffix);
}

/// Names stay below the folder that they are unpacked into and fit on one line of a list.
bool IsPlainName(std::string_view name) {
  const auto isForbidden = [](char character) {
    return static_cast<unsigned char>(character) < ' ' || character == ':';
  };
  if (name.empty() || std::any_of(name.begin(), name.end(), isForbidden)) return false;
  for (std::size_t start = 0; start <= name.size();) {
    const std::size_t end = std::min(name.find_first_of(kSeparators, start), name.size());
    const std::string_view part = name.substr(start, end - start);
    if (part == ".." || (part.empty() && start == 0)) return false;
    start = end + 1;
  }
  return true;
}

/// True for an entry that is not a folder; only files are listed.
bool IsFileName(std::string_view name) {
  return name.find('.') != name.npos;
}

/// One walk through an archive, from its first entry to its last.
class Walk {
 public:
  Walk(Archive& archive, const std::string& path, std::string_view password)
      : archive_(archive), opened_(archive.Open(path)) {
    if (opened_ && !password.empty()) archive_.SetPassword(std::string{password});
  }
  Walk(const Walk&) = delete;
  Walk& operator=(const Walk&) = delete;
  ~Walk() {
    if (opened_) archive_.Close();
  }

  bool Opened() const { return opened_; }
  std::optional<std::string> Next() {
    auto name = archive_.ReadHeader();
    if (name) name->resize(std::min(name->find('\0'), name->size()));
    return name;
  }
  bool Extract(const std::string& target) { return archive_.ProcessFile(target); }
  bool Skip() { return archive_.ProcessFile(std::nullopt); }

 private:
  Archive& archive_;
  bool opened_;
};

class Unpacking {
 public:
  Unpacking(const ContentContext& context, const std::string& archive, const std::string& folder,
            std::string_view password, const EntryFilter& allowed)
      : context_(context),
        archive_(archive),
        folder_(folder),
        password_(password),
        allowed_(allowed) {}

  UnpackResult Run() {
    const auto planned = PlannedList();
    if (!planned) return {};
    WriteList(*planned);
    context_.state.feed.introVisible = true;
    Walk walk(context_.archive, archive_, password_);
    while (const auto name = walk.Next()) {
      ProcessEntry(walk, *name);
      context_.pump.Yield();
    }
    if (list_ != *planned) WriteList(list_);
    result_.opened = true;
    return result_;
  }

 private:
  /// What the list will hold if every entry can be unpacked. It is written before the first of
  /// them, so that a later run can clean up after one that was killed.
  std::optional<std::string> PlannedList() const {
    Walk walk(context_.archive, archive_, password_);
    if (!walk.Opened()) return std::nullopt;
    std::string list;
    while (const auto name = walk.Next()) {
      walk.Skip();
      if (IsAllowed(*name) && IsFileName(*name)) list += ListLine(*name);
    }
    return list;
  }

  bool IsAllowed(const std::string& name) const {
    return IsPlainName(name) && (!allowed_ || allowed_(name));
  }

  std::string ListLine(const std::string& name) const {
    return context_.files.FullName(folder_ + name) + "\r\n";
  }

  void WriteList(const std::string& list) const {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): single-byte text is bytes
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(list.data());
    context_.files.Write(ListPath(archive_), {bytes, list.size()});
  }

  void ProcessEntry(Walk& walk, const std::string& name) {
    if (!IsAllowed(name)) {
      walk.Skip();
      ++result_.refused;
      return;
    }
    if (!ExtractOrSkip(walk, name)) {
      ++result_.refused;
      return;
    }
    ++result_.processed;
    if (IsFileName(name)) list_ += ListLine(name);
    FeedState& feed = context_.state.feed;
    ++feed.UnpackedCount;
    if (feed.UnpackedCount <= feed.LoadTotal) {
      ShowPercent(context_, 100.0 * feed.UnpackedCount / feed.LoadTotal);
    }
  }

  bool ExtractOrSkip(Walk& walk, const std::string& name) const {
    State& state = context_.state;
    const std::string target = folder_ + name;
    const bool extract = state.settings.NewInstall || !context_.files.IsLasting(target);
    const bool done = extract ? walk.Extract(target) : walk.Skip();
    DebugPrint(state,
               (extract ? "SnUnextractFile: processing " : "SnUnextractFile: skipping ") + name);
    return done;
  }

  const ContentContext& context_;
  const std::string& archive_;
  const std::string& folder_;
  std::string_view password_;
  const EntryFilter& allowed_;
  std::string list_;
  UnpackResult result_;
};

/// True for the program and what came with it, the player's settings, and what other running games
/// unpack into folders of their own here: a list that names one of these is wrong.
bool IsShipped(std::string_view shortName) {
  constexpr std::array<std::string_view, 5> kBeginnings = {".\\coilrun", ".\\lvl\\", ".\\models\\",
                                                           ".\\music\\", ".\\fonts\\"};
  constexpr std::array<std::string_view, 3> kFiles = {".\\intro.bmp", ".\\defaults.ini",
                                                      ".\\ai_names.lst"};
  return shortName.ends_with(".snr") || shortName.ends_with(".smp") ||
         std::any_of(kBeginnings.begin(), kBeginnings.end(),
                     [&](std::string_view start) { return shortName.starts_with(start); }) ||
         std::find(kFiles.begin(), kFiles.end(), shortName) != kFiles.end();
}

/// Deletes the files that the lists name, then the lists; returns whether any list was deleted.
bool DeleteListedFiles(Files& files) {
  std::vector<std::string> lists =
      files.List(InProgramFolder({}), kListSuffix).value_or(std::vector<std::string>{});
  for (std::string& name : lists) name = InProgramFolder("\\", name);
  std::vector<std::string> listed;
  for (const std::string& path : lists) {
    const Bytes list = files.Read(path).value_or(Bytes{});
    LineReader lines(TextOf(list));
    while (const auto line = lines.Next()) listed.emplace_back(*line);
  }
  std::erase_if(listed, [&](const std::string& path) { return IsShipped(files.ShortName(path)); });
  files.DeleteAll(listed);
  return files.DeleteAll(lists) > 0;
}

}  // namespace

bool FileExists(const Files& files, const std::string& path) {
  return files.Exists(path);
}

UnpackResult SnUnextractFile(const ContentContext& context, const std::string& archive,
                             const std::string& folder, std::string_view password,
                             const EntryFilter& allowed) {
  return Unpacking(context, archive, folder, password, allowed).Run();
}

void CleanUpFiles(const ContentContext& context) {
  State& state = context.state;
  state.shell.Running = false;
  if (state.settings.NewInstall) context.host.StoreSetting("NewInstall", "False");
  if (!state.settings.NoCleanUp) {
    // Both roots may hold a list of the same name: the second shows only when the first is gone.
    while (DeleteListedFiles(context.files)) {
    }
  }
  context.pump.Yield();
}

}  // namespace coilrun
