// Language files: finding them, and filling the table of texts from one, with English for what it lacks.
#include "ui/Language.h"

#include "base/Numbers.h"
#include "base/ProfileFile.h"
#include "base/mdlFileRoutines.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"
#include "ui/ErrorText.h"

namespace folivant {
namespace {

constexpr wchar_t kSection[] = L"Messages";
constexpr wchar_t kEnglish[] = L"english.ini";
constexpr wchar_t kMissing[] = L"**";
constexpr wchar_t kDefaultHelp[] = L"folvnt40.hlp";
constexpr std::size_t kLongestText = 299;
constexpr std::size_t kLongestName = 99;

using Failures = std::vector<RuntimeError>;

/// A file that cannot be read has no texts: what is missing shows in its place.
ProfileFile ReadableOrEmpty(const std::wstring& path, Failures& failures) {
  try {
    return ProfileFile(path);
  } catch (const RuntimeError& failure) {
    failures.push_back(failure);
    return ProfileFile({});
  }
}

/// Of what went wrong, this alone is told: it says what to do about it.
void ReportTooLargeFiles(const Failures& failures, const Messages& texts) {
  for (const RuntimeError& failure : failures) {
    if (failure.Action() == FailedAction::ReadLargeFile) {
      ShowError(failure, texts);
    }
  }
}

std::wstring RawText(const ProfileFile& file, const std::wstring& key) {
  return StripNulls(file.Read(kSection, key, kMissing, kLongestText));
}

std::wstring TextOf(const ProfileFile& language, const ProfileFile& english, std::size_t number) {
  const std::wstring key = std::to_wstring(number);
  std::wstring text = RawText(language, key);
  if (text == kMissing) {
    text = RawText(english, key);
  }
  return text == kMissing ? kMissing + key + kMissing : ReplaceAll(text, L"\\n", L"\r\n");
}

std::wstring HelpFileOf(const std::wstring& folder, const std::wstring& language) {
  const std::wstring own = folder + language.substr(0, language.find(L'.')) + L".hlp";
  return platform::PathExists(own) ? own : folder + kDefaultHelp;
}

/// The number that the text begins with; 0 where it cannot be the position of a picture.
std::int32_t FlagOf(const std::wstring& text) {
  constexpr WholeRange kPositions{0, 9'999};
  return ReadLeadingWhole(text, kPositions).Value.value_or(0);
}

}  // namespace

std::wstring LoadLanguage(const std::wstring& programFolder, std::wstring& language, Messages& texts) {
  const std::wstring folder = AddBackslash(programFolder);
  if (language.empty() || !platform::PathExists(folder + language)) {
    language = kEnglish;
  }
  Failures failures;
  const ProfileFile english = ReadableOrEmpty(folder + kEnglish, failures);
  const ProfileFile chosen = language == kEnglish ? english : ReadableOrEmpty(folder + language, failures);
  for (std::size_t number = 0; number < Messages::kCount; ++number) {
    texts.Set(number, TextOf(chosen, english, number));
  }
  ReportTooLargeFiles(failures, texts);
  return HelpFileOf(folder, language);
}

std::vector<LanguageEntry> ListLanguages(const std::wstring& programFolder) {
  constexpr wchar_t kNoLanguage[] = L"(error)";
  std::vector<LanguageEntry> languages;
  Failures ignored;
  for (const std::wstring& name : platform::FindNames(programFolder, L".ini")) {
    const ProfileFile file = ReadableOrEmpty(AddBackslash(programFolder) + name, ignored);
    const std::wstring language = StripNulls(file.Read(kSection, L"Language", kNoLanguage, kLongestName));
    if (language != kNoLanguage) {
      languages.push_back({name, language, FlagOf(StripNulls(file.Read(kSection, L"Flag", L"0", kLongestName)))});
    }
  }
  return languages;
}

std::wstring WithPlaceholders(std::wstring text, const std::wstring& one, const std::wstring& two,
                              const std::wstring& three) {
  const std::wstring* const values[] = {&one, &two, &three};
  for (std::size_t at = text.find(L'%'); at < text.size() - 1; at = text.find(L'%', at)) {
    const std::size_t value = static_cast<std::size_t>(text[at + 1] - L'1');
    if (value >= std::size(values)) {
      ++at;
      continue;
    }
    text.replace(at, 2, *values[value]);
    at += values[value]->size();
  }
  return text;
}

}  // namespace folivant
