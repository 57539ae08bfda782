#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <random>
#include <string>
#include <system_error>
#include <variant>
#include <vector>

#include "model/state.h"
#include "platform/platform.h"
#include "platform/stop_signals.h"
#include "ports/ports.h"
#include "ports/terminate.h"
#include "script/script.h"
#include "script/script_player.h"
#include "shell/host_options.h"
#include "shell/program.h"

namespace coilrun {
namespace {

constexpr int kCriticalFailure = 1;
constexpr int kWrongUse = 2;

int Complain(const std::string& line, int exitCode) {
  std::cerr << "coilrun: " << line << '\n';
  return exitCode;
}

PlatformOptions OptionsFor(const HostOptions& options, StopSignals& signals) {
  PlatformOptions wanted;
  wanted.stopped = [&signals] { return signals.Arrived(); };
  wanted.data = options.data;
  wanted.user = options.user;
  wanted.windowed = options.windowed;
  wanted.fps = options.fps;
  wanted.report = [](const std::string& line) { std::cerr << "coilrun: " << line << '\n'; };
  return wanted;
}

int RunProgram(State& state, const Ports& ports, const HostOptions& options) {
  state.more.forRun = {options.classic, options.rivals, options.watch};
  try {
    Program program(state, ports, COILRUN_VERSION);
    program.Run(options.commandLine);
  } catch (const Terminate& leaving) {
    return leaving.exitCode;
  }
  return 0;
}

int PlayInWindow(const HostOptions& options) {
  StopSignals signals;
  const auto made = MakeSdlPlatform(OptionsFor(options, signals));
  if (!made.platform) return Complain(made.problem, kCriticalFailure);
  const auto state = std::make_unique<State>();
  state->clockSeed = options.seed;
  StoppableKeys keys(signals, made.platform->Keys());
  const int exitCode =
      RunProgram(*state, {made.platform->Common(), keys, made.platform->Boxes()}, options);
  made.platform->ProgramEnded();
  return exitCode;
}

int PlayHeadless(const HostOptions& options) {
  ScriptOrError loaded = options.script ? LoadScript(*options.script) : ScriptOrError{Script{}, {}};
  if (!loaded.script) return Complain(loaded.error, kWrongUse);
  std::ofstream traceFile;
  if (options.trace) traceFile.open(*options.trace, std::ios::binary);
  if (!traceFile) return Complain("cannot write the trace " + *options.trace, kWrongUse);
  std::ostream& trace = options.trace ? traceFile : std::cout;

  StopSignals signals;
  const auto made = MakeHeadlessPlatform(OptionsFor(options, signals));
  if (!made.platform) return Complain(made.problem, kCriticalFailure);
  const auto state = std::make_unique<State>();
  state->clockSeed = options.seed;
  state->output.enabled = true;
  const CommonPorts& common = made.platform->Common();
  ScriptPlayer player(*std::move(loaded.script), {*state, common.clock, common.music,
                                                  made.platform->Pictures(), trace, std::cerr});
  StoppableKeys keys(signals, player);
  const int exitCode = RunProgram(*state, {common, keys, player}, options);
  trace.flush();
  return trace ? exitCode : Complain("cannot write the trace", kWrongUse);
}

int Main(const std::vector<std::string>& arguments) {
  const auto parsed = ParseHostOptions(arguments);
  if (const auto* fault = std::get_if<std::string>(&parsed)) return Complain(*fault, kWrongUse);
  const auto& options = std::get<HostOptions>(parsed);
  if (options.help) {
    std::cout << HelpText();
    return 0;
  }
  if (options.version) {
    std::cout << "coilrun " COILRUN_VERSION "\n";
    return 0;
  }
  std::error_code error;
  if (options.user && std::filesystem::exists(*options.user, error) &&
      !std::filesystem::is_directory(*options.user, error)) {
    return Complain("--user " + options.user->string() + " is not a folder", kWrongUse);
  }
  return options.headless ? PlayHeadless(options) : PlayInWindow(options);
}

}  // namespace
}  // namespace coilrun

int main(int argc, char** argv) {
  try {
    return coilrun::Main({argv + 1, argv + argc});
  } catch (const std::exception& broken) {
    std::cerr << "coilrun: internal error: " << broken.what() << '\n';
    return 1;
  }
}
