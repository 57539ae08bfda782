#pragma once

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "content/loader_host.h"
#include "model/state.h"

namespace coilrun {

/// Remembers what the loader asked for. Pictures in `pictures` can be loaded, and are then held.
class FakeLoaderHost final : public LoaderHost {
 public:
  explicit FakeLoaderHost(State& state) : state_(state) {}

  void LoadSettings() override {
    state_.settings.MaxSpeed = 30;
    state_.settings.GlobalSpeed = 100;
    for (SnakeRec& snake : state_.Snakes) snake.BaseInterval = 100;
  }
  void StoreSetting(const std::string& key, const std::string& value) override {
    stored[key] = value;
  }
  void LoadBackground() override { backgrounds.push_back(state_.level.BkgPic); }
  void PrepareLvlGfx() override { ++preparations; }
  bool PreloadUserItem(const std::string& name) override {
    if (pictures.count(name) == 0) return false;
    preloaded.push_back(name);
    return true;
  }
  bool HoldsPicture(const std::string& name) const override {
    return std::find(preloaded.begin(), preloaded.end(), name) != preloaded.end();
  }
  void LoadModelPictures(int model) override { models.push_back(model); }
  void ShowProgress() override { percents.push_back(state_.feed.introProgress); }

  std::set<std::string> pictures;
  std::map<std::string, std::string> stored;
  std::vector<std::string> backgrounds;
  std::vector<std::string> preloaded;
  std::vector<int> models;
  std::vector<double> percents;
  int preparations = 0;

 private:
  State& state_;
};

}  // namespace coilrun
