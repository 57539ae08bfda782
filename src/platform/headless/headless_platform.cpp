#include "platform/folders.h"
#include "platform/headless/headless_screen.h"
#include "platform/headless/silent_audio.h"
#include "platform/headless/silent_music.h"
#include "platform/headless/virtual_clock.h"
#include "platform/platform.h"
#include "platform/sdl/sdl_text.h"
#include "platform/storage.h"

namespace coilrun {
namespace {

class RealHeadlessPlatform : public HeadlessPlatform {
 public:
  RealHeadlessPlatform(std::unique_ptr<TemporaryFolder> temporary, const Folders& folders,
                       const PlatformOptions& options)
      : temporary_(std::move(temporary)),
        storage_(folders, options.report),
        clock_(options.fps),
        screen_(clock_),
        music_(clock_),
        text_(folders.program / "fonts", options.report) {}

  const CommonPorts& Common() const override { return ports_; }
  PictureSink& Pictures() override { return screen_; }

 private:
  std::unique_ptr<TemporaryFolder> temporary_;
  Storage storage_;
  VirtualClock clock_;
  HeadlessScreen screen_;
  SilentAudio audio_;
  SilentMusic music_;
  SdlText text_;
  CommonPorts ports_{clock_,           screen_,           audio_, music_, storage_.files,
                     storage_.archive, storage_.settings, text_};
};

}  // namespace

PlatformResult<HeadlessPlatform> MakeHeadlessPlatform(const PlatformOptions& options) {
  std::unique_ptr<TemporaryFolder> temporary;
  if (!options.user) {
    temporary = std::make_unique<TemporaryFolder>();
    if (temporary->Path().empty()) return {nullptr, "no temporary folder can be made"};
  }
  const auto program = options.data.value_or(DefaultProgramFolder(FindSurroundings()));
  const Folders folders = FoldersIn(program, options.user ? *options.user : temporary->Path());
  return {std::make_unique<RealHeadlessPlatform>(std::move(temporary), folders, options), ""};
}

}  // namespace coilrun
