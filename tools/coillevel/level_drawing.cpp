#include "level_drawing.h"

#include <stdexcept>

#include "content/archives.h"
#include "content/load_level.h"
#include "content/model_packs.h"
#include "content/quiet_host.h"
#include "model/shown_model.h"
#include "platform/disk_files.h"
#include "platform/folders.h"
#include "platform/png_file.h"
#include "platform/rar/rar_archive.h"
#include "quiet_ports.h"
#include "render/renderer.h"

namespace coilrun {
namespace {

constexpr const char* kPath = ".\\lvl\\level.dat";

/// Makes everything go into the temporary folder.
bool NeverWritable(const std::filesystem::path& /*folder*/) {
  return false;
}

/// Loads pictures the way the game does.
class DrawingHost final : public QuietHost {
 public:
  DrawingHost(State& state, Renderer& renderer) : QuietHost(state), renderer_(renderer) {}

  void LoadBackground() override { renderer_.LoadBackground(); }
  void PrepareLvlGfx() override { renderer_.PrepareLvlGfx(); }
  bool PreloadUserItem(const std::string& name) override { return renderer_.PreloadUserItem(name); }
  bool HoldsPicture(const std::string& name) const override { return renderer_.HoldsPicture(name); }
  void LoadModelPictures(int model) override { renderer_.LoadModelPictures(model); }

 private:
  Renderer& renderer_;
};

void DrawField(PlayField& field) {
  field.DrawBackground();
  field.DrawStartMarkers();
  field.DrawAllItems();
  field.DrawWalls();
  field.DrawUserItems();
}

void GiveUp() {
  throw std::runtime_error("a picture of the game is missing");
}

}  // namespace

std::string DrawLevel(std::string_view text, const std::filesystem::path& programFolder,
                      const std::filesystem::path& picture) {
  const TemporaryFolder temporary;
  if (temporary.Path().empty()) return "no temporary folder can be made";
  DiskFiles files(programFolder, temporary.Path(), NeverWritable);
  RarArchive archive(files);
  State state;
  NoPump pump;
  NoBox box;
  NoText noText;
  Renderer renderer(state, {files, noText, box, pump, GiveUp, ""});
  DrawingHost host(state, renderer);
  const ContentContext context{state, files, archive, pump, host};

  if (!SnUnextractFile(context, ".\\gfx.snr", ".\\", kArchivePassword).opened) {
    return "there is no gfx.snr in " + programFolder.string();
  }
  renderer.LoadStandardPictures();
  SnGetModelPacks(context);
  state.Snakes(1).Model = kDefaultModel;
  if (!files.Write(kPath, Bytes(text.begin(), text.end()))) {
    return "cannot write into " + temporary.Path().string();
  }
  LoadLevel(context, kPath);
  if (state.shell.NoGameRunning) return "the game would not load it; \"check\" says why";
  DrawField(renderer.Field());
  const Surface& drawn = renderer.Screen().Back();
  return WritePng(picture, drawn.Pixels()) ? "" : "cannot write " + picture.string();
}

}  // namespace coilrun
