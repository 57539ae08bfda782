#pragma once

#include "content/context.h"
#include "support/fake_archive.h"
#include "support/fake_files.h"
#include "support/fake_loader_host.h"
#include "support/fake_pump.h"

namespace coilrun {

/// A program without a machine: everything that loading content needs.
struct ContentStage {
  State state;
  FakeFiles files;
  FakeArchive archive{files};
  FakePump pump;
  FakeLoaderHost host{state};
  ContentContext context{state, files, archive, pump, host};
};

}  // namespace coilrun
