#include "app/CommandLine.h"

#include "base/mdlFileRoutines.h"
#include "output/OutputKinds.h"

namespace folivant {
namespace {

std::optional<std::wstring> ArgumentOf(const std::wstring& line, const wchar_t* name) {
  const std::size_t at = line.find(name);
  return at == line.npos ? std::nullopt : std::optional(GetSwitchArgument(line, static_cast<std::int32_t>(at) + 1));
}

/// Exactly one character lies between the switch and its letter, whatever it is.
std::optional<wchar_t> LetterOf(const std::wstring& line) {
  const std::size_t at = line.find(L"/t");
  if (at == line.npos) {
    return std::nullopt;
  }
  return at + 3 < line.size() ? line[at + 3] : L'\0';
}

}  // namespace

std::wstring StripQuotes(const std::wstring& text) {
  std::wstring stripped = Trim(text);
  if (stripped.find(L'"') == stripped.npos) {
    return stripped;
  }
  if (stripped.starts_with(L'"')) {
    stripped.erase(0, 1);
  }
  if (stripped.ends_with(L'"')) {
    stripped.pop_back();
  }
  return Trim(stripped);
}

std::wstring GetSwitchArgument(const std::wstring& line, std::int32_t position) {
  const std::wstring terminated = line + L'/';
  const std::size_t slash = static_cast<std::size_t>(position) - 1;
  const std::size_t end = terminated.find(L'/', slash + 1);
  const std::size_t first = slash + 2;
  return end <= first ? std::wstring() : StripQuotes(terminated.substr(first, end - first));
}

CommandLine ReadCommandLine(const std::wstring& line) {
  CommandLine command;
  command.HasSwitches = line.find(L'/') != line.npos;
  if (!command.HasSwitches) {
    command.Path = StripQuotes(line);
    return command;
  }
  command.FilterFile = ArgumentOf(line, L"/f");
  command.Directory = ArgumentOf(line, L"/d");
  command.OutputLetter = LetterOf(line);
  command.KindWord = ArgumentOf(line, L"/k");
  command.OutputFile = ArgumentOf(line, L"/o");
  command.LogFile = ArgumentOf(line, L"/l");
  command.Go = line.find(L"/g") != line.npos;
  command.Quiet = line.find(L"/q") != line.npos;
  return command;
}

std::wstring WithSwitchExtension(const std::wstring& fileName, OutputKind kind) {
  if (fileName.find(L'.') != fileName.npos) {
    return fileName;
  }
  return fileName + std::wstring(RowOf(kind).SwitchExtension);
}

}  // namespace folivant
