#include "platform/folders.h"
#include "platform/platform.h"
#include "platform/sdl/sdl_audio.h"
#include "platform/sdl/sdl_clock.h"
#include "platform/sdl/sdl_keys.h"
#include "platform/sdl/sdl_message_box.h"
#include "platform/sdl/sdl_mixer.h"
#include "platform/sdl/sdl_music.h"
#include "platform/sdl/sdl_session.h"
#include "platform/sdl/sdl_text.h"
#include "platform/sdl/sdl_window.h"
#include "platform/storage.h"

namespace coilrun {
namespace {

class SdlPlatform : public WindowPlatform {
 public:
  SdlPlatform(std::unique_ptr<SdlSession> session, const Folders& folders,
              const PlatformOptions& options)
      : session_(std::move(session)),
        storage_(folders, options.report),
        window_(clock_, options.windowed, folders.program / "coilrun.png"),
        keys_(window_),
        audio_(mixer_),
        music_(mixer_, clock_),
        text_(folders.program / "fonts", options.report),
        boxes_(window_, keys_, text_, options.stopped) {
    if (window_.Problem().empty()) window_.SaveWhenLost([this] { keys_.CloseOnLostDisplay(); });
  }

  const std::string& Problem() const { return window_.Problem(); }
  const CommonPorts& Common() const override { return ports_; }
  KeySource& Keys() override { return keys_; }
  MessageBox& Boxes() override { return boxes_; }
  void ProgramEnded() override { keys_.ForgetListener(); }

 private:
  std::unique_ptr<SdlSession> session_;
  Storage storage_;
  SdlClock clock_;
  SdlWindow window_;
  SdlKeys keys_;
  SdlMixer mixer_;
  SdlAudio audio_;
  SdlMusic music_;
  SdlText text_;
  SdlMessageBox boxes_;
  CommonPorts ports_{clock_,           window_,           audio_, music_, storage_.files,
                     storage_.archive, storage_.settings, text_};
};

Folders FoldersOf(const PlatformOptions& options) {
  const Surroundings surroundings = FindSurroundings();
  const auto program = options.data.value_or(DefaultProgramFolder(surroundings));
  return options.user ? FoldersIn(program, *options.user) : DefaultFolders(program, surroundings);
}

}  // namespace

PlatformResult<WindowPlatform> MakeSdlPlatform(const PlatformOptions& options) {
  auto session = std::make_unique<SdlSession>();
  if (!session->Problem().empty()) return {nullptr, session->Problem()};
  auto platform = std::make_unique<SdlPlatform>(std::move(session), FoldersOf(options), options);
  if (!platform->Problem().empty()) return {nullptr, platform->Problem()};
  return {std::move(platform), ""};
}

}  // namespace coilrun
