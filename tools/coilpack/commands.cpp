#include "commands.h"

#include <algorithm>
#include <ctime>
#include <filesystem>
#include <iomanip>
#include <iostream>
#include <sstream>
#include <utility>

#include <nlohmann/json.hpp>

#include "game_pictures.h"
#include "model_check.h"
#include "platform/rar/checksums.h"
#include "platform/rar/rar_reader.h"
#include "platform/rar/rar_writer.h"
#include "source_folder.h"
#include "target_folder.h"

namespace coilrun {
namespace {

using Json = nlohmann::ordered_json;

/// Names may hold control characters, which must not reach a terminal.
std::string Printable(std::string text) {
  std::replace_if(
      text.begin(), text.end(),
      [](char letter) { return static_cast<unsigned char>(letter) < 0x20 || letter == 0x7F; }, '?');
  return text;
}

int Complain(const std::string& where, const std::string& what) {
  std::cerr << Printable(where) << ": " << what << '\n';
  return 1;
}

std::optional<RarReader> OpenArchive(const PackOptions& options) {
  auto file = ReadWholeFile(options.archive);
  if (!file) return std::nullopt;
  return RarReader(std::move(*file), options.password);
}

constexpr const char* kUnreadable = "cannot be read";

int FinishWalk(const PackOptions& options, const RarReader& reader, int code) {
  return reader.Fault().empty() ? code : Complain(options.archive, reader.Fault());
}

std::string TimeText(const std::optional<std::int64_t>& mtime) {
  if (!mtime) return "-";
  if (!std::in_range<std::time_t>(*mtime)) return "-";
  const auto seconds = static_cast<std::time_t>(*mtime);
  std::tm parts{};
  if (gmtime_r(&seconds, &parts) == nullptr) return "-";
  std::ostringstream text;
  text << std::put_time(&parts, "%Y-%m-%d %H:%M:%S");
  return text.str();
}

std::string HexOf(const Digest256& digest) {
  std::ostringstream text;
  text << std::hex << std::setfill('0');
  for (const std::uint8_t byte : digest) text << std::setw(2) << int{byte};
  return text.str();
}

void PrintJson(const Json& line) {
  std::cout << line.dump(-1, ' ', false, Json::error_handler_t::replace) << '\n';
}

Json Describe(const RarEntry& entry, const RarContents& contents) {
  Json line = {{"name", entry.name}, {"dir", entry.folder}, {"size", entry.size}};
  std::replace(line["name"].get_ref<std::string&>().begin(),
               line["name"].get_ref<std::string&>().end(), '\\', '/');
  if (entry.mtime) line["mtime"] = *entry.mtime;
  line["result"] = contents.Ok() ? "ok" : contents.problem;
  const auto digest = contents.Ok() && !entry.folder ? Sha256(contents.bytes) : std::nullopt;
  if (digest) line["sha256"] = HexOf(*digest);
  return line;
}

bool WriteWholeFile(const std::filesystem::path& file, const Bytes& contents) {
  const std::filesystem::path folder = file.has_parent_path() ? file.parent_path() : ".";
  if (!std::filesystem::is_directory(folder)) return false;
  TargetFolder target(folder.string());
  return target.Ok() && target.Write(file.filename().string(), contents, std::nullopt).empty();
}

/// Reads the folder; if the archive is for the game, turns the pictures into the game's format.
SourceFolder ReadForArchive(const PackOptions& options) {
  SourceFolder folder = ReadSourceFolder(options.folder, options.archive);
  if (!folder.problem.empty() || !IsGameArchive(options.archive)) return folder;
  const ConvertedPictures converted = ConvertPictures(options.archive, folder.sources);
  if (!converted.problem.empty()) return {{}, converted.problem};
  for (const std::string& warning : converted.warnings) std::cerr << Printable(warning) << '\n';
  return folder;
}

std::string ExtractEntry(RarReader& reader, std::size_t index, TargetFolder& target) {
  const RarEntry& entry = reader.Entries()[index];
  const RarContents contents = reader.Read(index);
  if (!contents.Ok()) return contents.problem;
  if (entry.folder) return target.MakeFolder(entry.name);
  return target.Write(entry.name, contents.bytes, entry.mtime);
}

}  // namespace

int CreateArchive(const PackOptions& options) {
  const SourceFolder folder = ReadForArchive(options);
  if (!folder.problem.empty()) {
    std::cerr << Printable(folder.problem) << '\n';
    return 1;
  }
  const auto archive = WriteRar(folder.sources, options.password);
  if (!archive) return Complain(options.archive, kCryptoFails);
  if (!WriteWholeFile(options.archive, *archive))
    return Complain(options.archive, "cannot be written");
  return 0;
}

int ListArchive(const PackOptions& options) {
  const auto reader = OpenArchive(options);
  if (!reader) return Complain(options.archive, kUnreadable);
  for (const RarEntry& entry : reader->Entries()) {
    std::cout << std::setw(10) << entry.size << "  " << std::setw(19) << TimeText(entry.mtime)
              << "  " << Printable(entry.name) << (entry.folder ? "/" : "") << '\n';
  }
  return FinishWalk(options, *reader, 0);
}

int ExtractArchive(const PackOptions& options) {
  auto reader = OpenArchive(options);
  if (!reader) return Complain(options.archive, kUnreadable);
  TargetFolder target(options.folder);
  if (!target.Ok()) return Complain(options.folder, "cannot be made or opened");
  int code = 0;
  for (std::size_t i = 0; i < reader->Entries().size(); ++i) {
    const std::string problem = ExtractEntry(*reader, i, target);
    if (!problem.empty()) code = Complain(reader->Entries()[i].name, problem);
  }
  return FinishWalk(options, *reader, code);
}

int TestArchive(const PackOptions& options) {
  auto reader = OpenArchive(options);
  if (!reader) {
    if (options.json) PrintJson({{"end", kUnreadable}});
    return Complain(options.archive, kUnreadable);
  }
  int code = 0;
  for (std::size_t i = 0; i < reader->Entries().size(); ++i) {
    const RarEntry& entry = reader->Entries()[i];
    const RarContents contents = reader->Read(i);
    if (options.json) PrintJson(Describe(entry, contents));
    if (!contents.Ok()) code = Complain(entry.name, contents.problem);
    if (contents.Ok() && !options.json) std::cout << Printable(entry.name) << ": ok\n";
  }
  if (options.json) PrintJson({{"end", reader->Fault().empty() ? "end" : reader->Fault()}});
  if (options.model) {
    for (const std::string& fault : ModelFaults(options.archive, *reader)) {
      code = Complain(options.archive, fault);
    }
  }
  return FinishWalk(options, *reader, code);
}

}  // namespace coilrun
