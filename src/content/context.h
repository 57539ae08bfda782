#pragma once

#include "content/loader_host.h"
#include "model/state.h"
#include "ports/archive.h"
#include "ports/files.h"
#include "ports/pump.h"

namespace coilrun {

/// What the loading of content works with. Made once by the shell; everything in it outlives it.
struct ContentContext {
  State& state;
  Files& files;
  Archive& archive;
  Pump& pump;
  LoaderHost& host;
};

}  // namespace coilrun
