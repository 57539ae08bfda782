#pragma once

#include <string>

#include "content/loader_host.h"
#include "model/state.h"
#include "ports/archive.h"
#include "ports/pump.h"

namespace coilrun {

/// No time passes.
class NoPump final : public Pump {
 public:
  void Yield() override {}
  void Flip() override {}
  void Present() override {}
  void Sleep(int /*milliseconds*/) override {}
};

/// Keeps default settings and loads no pictures, as if every one that exists could be loaded.
class QuietHost : public LoaderHost {
 public:
  explicit QuietHost(State& state) : state_(state) {}

  void LoadSettings() override {
    for (SnakeRec& snake : state_.Snakes) {
      snake.BaseInterval = static_cast<int>(SettingsState{}.GlobalSpeed);
    }
  }
  void StoreSetting(const std::string& /*key*/, const std::string& /*value*/) override {}
  void LoadBackground() override {}
  void PrepareLvlGfx() override {}
  bool PreloadUserItem(const std::string& /*name*/) override { return true; }
  bool HoldsPicture(const std::string& /*name*/) const override { return true; }
  void LoadModelPictures(int /*model*/) override {}
  void ShowProgress() override {}

 private:
  State& state_;
};

/// Archives that are never opened.
class ClosedArchive : public Archive {
 public:
  bool Open(const std::string& /*path*/) override { return false; }
  void SetPassword(const std::string& /*password*/) override {}
  std::optional<std::string> ReadHeader() override { return std::nullopt; }
  bool ProcessFile(const std::optional<std::string>& /*target*/) override { return false; }
  void Close() override {}
};

}  // namespace coilrun
