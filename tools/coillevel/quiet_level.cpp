#include "quiet_level.h"

#include "content/load_level.h"
#include "content/quiet_host.h"

namespace coilrun {
namespace {

constexpr const char* kPath = ".\\lvl\\level.dat";

/// A program folder that holds one level and the pictures that it may name; nothing is written.
class OneLevel final : public Files {
 public:
  OneLevel(std::string_view level, const Pictures& pictures)
      : level_(level.begin(), level.end()), pictures_(pictures) {}

  /// From now on, any picture may exist.
  void AddUnknownPictures() { unknownPictures_ = true; }

  bool Exists(const std::string& path) const override {
    constexpr std::string_view kPictures = ".\\gfx\\";
    if (!path.starts_with(kPictures)) return false;
    return unknownPictures_ || pictures_.Has(path.substr(kPictures.size()));
  }
  std::optional<Bytes> Read(const std::string& path) const override {
    if (path != kPath) return std::nullopt;
    return level_;
  }
  std::optional<std::vector<std::string>> List(const std::string& /*folder*/,
                                               std::string_view /*suffix*/) const override {
    return std::nullopt;
  }
  bool Write(const std::string& /*path*/, std::span<const std::uint8_t> /*bytes*/) override {
    return false;
  }
  bool MakeFolder(const std::string& /*path*/) override { return false; }
  std::size_t DeleteAll(std::span<const std::string> /*paths*/) override { return 0; }
  bool IsLasting(const std::string& /*path*/) const override { return false; }
  std::string WriteProblem(const std::string& /*path*/) const override { return {}; }
  std::string FullName(const std::string& path) const override { return path; }
  std::string ShortName(const std::string& path) const override { return path; }

 private:
  Bytes level_;
  const Pictures& pictures_;
  bool unknownPictures_ = false;
};

/// The level's archives, which are never opened.
class ClosedArchives final : public ClosedArchive {
 public:
  explicit ClosedArchives(OneLevel& files) : files_(files) {}

  bool Open(const std::string& /*path*/) override {
    files_.AddUnknownPictures();
    return false;
  }

 private:
  OneLevel& files_;
};

}  // namespace

std::unique_ptr<State> LoadQuietly(std::string_view text, const Pictures& pictures) {
  auto state = std::make_unique<State>();
  OneLevel files(text, pictures);
  ClosedArchives archives(files);
  NoPump pump;
  QuietHost host(*state);
  LoadLevel({*state, files, archives, pump, host}, kPath);
  if (state->shell.NoGameRunning) return nullptr;
  return state;
}

}  // namespace coilrun
