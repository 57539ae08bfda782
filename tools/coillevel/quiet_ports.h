#pragma once

#include <string>

#include "content/loader_host.h"
#include "model/state.h"
#include "ports/message_box.h"
#include "ports/pump.h"
#include "ports/text_face.h"

namespace coilrun {

/// No time passes.
class NoPump final : public Pump {
 public:
  void Yield() override {}
  void Flip() override {}
  void Present() override {}
  void Sleep(int /*milliseconds*/) override {}
};

/// Answers yes: go on without what is missing.
class NoBox final : public MessageBox {
 public:
  BoxAnswer Show(const std::string& /*title*/, const std::string& /*text*/,
                 BoxButtons buttons) override {
    return buttons == BoxButtons::kOk ? BoxAnswer::kOk : BoxAnswer::kYes;
  }
};

/// No system fonts.
class NoText final : public TextFace {
 public:
  int Measure(const FontStyle& /*style*/, std::string_view /*text*/) override { return 0; }
  const TextMask& Render(const FontStyle& /*style*/, std::string_view /*text*/) override {
    return empty_;
  }

 private:
  TextMask empty_;
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

}  // namespace coilrun
