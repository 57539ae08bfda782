#include "content/model_packs.h"

#include <algorithm>
#include <string>
#include <vector>

#include "content/archives.h"
#include "content/lines.h"
#include "content/model_ini.h"
#include "content/progress.h"
#include "model/feed.h"
#include "ports/windows_1252.h"

namespace coilrun {
namespace {

constexpr std::string_view kSuffix = ".smp";
/// How many progress steps a pack counts for.
constexpr int kStepsAPack = 32;

std::string DirOf(const std::string& file) {
  return file.substr(0, file.size() - kSuffix.size());
}

/// Finds, unpacks and describes the packs of the models folder.
class PackLoading {
 public:
  PackLoading(const ContentContext& context, std::vector<std::string> files)
      : context_(context), state_(context.state), files_(std::move(files)) {}

  void Run() {
    const int found = static_cast<int>(std::min<std::size_t>(files_.size(), kMaxModelPacks));
    state_.LastModel = found - 1;
    state_.feed.LoadTotal = state_.LastModel * kStepsAPack;
    state_.feed.UnpackedCount = 0;
    for (int model = 0; model < found; ++model) Load(model);
    if (files_.size() > kMaxModelPacks) {
      Report("Model pack " + files_.at(kMaxModelPacks) + " and all after it: only " +
             std::to_string(kMaxModelPacks) + " packs can be used");
    }
    // Comes last, so that lines about missing pictures do not push these out of the console.
    for (const std::string& fault : faults_) ConsolePrint(state_, fault);
  }

 private:
  void Load(int model) {
    ModelPack& pack = state_.ModelPacks(model);
    pack.File = files_.at(static_cast<std::size_t>(model));
    pack.Dir = DirOf(pack.File);
    ShowCaption(context_, "Decompressing/Loading model: " + pack.Dir);
    if (!state_.shell.DisplayReady) Unpack(pack.File);
    Describe(state_.ModelPacks(model));
    context_.host.LoadModelPictures(model);
  }

  void Unpack(const std::string& file) {
    DebugPrint(state_, "SnGetModelPacks: Loading " + file);
    const std::string own = FoldCase(DirOf(file));
    const auto isOwn = [&](std::string_view name) {
      const std::string folder = FoldCase(name.substr(0, name.find_first_of("\\/")));
      return folder == own || !IsPackFolder(folder);
    };
    const UnpackResult result = SnUnextractFile(context_, InProgramFolder("\\models\\", file),
                                                InProgramFolder("\\gfx\\"), "", isOwn);
    if (!result.opened) {
      Report("Model pack " + file + " is no archive that can be read");
    } else if (result.refused > 0) {
      Report("Model pack " + file + ": " + std::to_string(result.refused) +
             " files are damaged, locked or not allowed");
    } else if (!FileExists(context_.files, InProgramFolder("\\gfx\\", DirOf(file)))) {
      Report("Model pack " + file + " holds no folder " + DirOf(file));
    }
  }

  bool IsPackFolder(const std::string& lowerCaseName) const {
    return std::any_of(files_.begin(), files_.end(), [&](const std::string& file) {
      return FoldCase(DirOf(file)) == lowerCaseName;
    });
  }

  void Describe(ModelPack& pack) const {
    const auto ini = context_.files.Read(InProgramFolder("\\gfx\\", pack.Dir) + "\\model.ini");
    if (ini) {
      ReadModelIni(TextOf(*ini), pack);
    } else {
      pack = UndescribedPack(pack.File, pack.Dir);
    }
  }

  void Report(std::string fault) { faults_.push_back(std::move(fault)); }

  const ContentContext& context_;
  State& state_;
  std::vector<std::string> files_;
  std::vector<std::string> faults_;
};

}  // namespace

void SnGetModelPacks(const ContentContext& context) {
  ShowCaption(context, "Loading model packs...");
  DebugPrint(context.state, "SnGetModelPacks: Searching model packs");
  const auto files = context.files.List(InProgramFolder("\\models"), kSuffix);
  PackLoading(context, files.value_or(std::vector<std::string>{})).Run();
}

}  // namespace coilrun
