// Matching of names against the patterns of the filter, taken apart once for a run of millions of names.
#include "scan/NamePatterns.h"

#include <algorithm>
#include <array>

#include "base/mdlFileRoutines.h"
#include "platform/Text.h"

namespace folivant {

WildcardPattern::WildcardPattern(std::wstring_view pattern) : everyDotted_(pattern == L"*" || pattern == L"*.*") {
  const std::wstring lower = platform::ToLower(pattern);
  for (std::size_t i = 0; i < lower.size(); ++i) {
    switch (lower[i]) {
      case L'*':
        tokens_.push_back({TokenKind::AnyRun});
        break;
      case L'?':
        tokens_.push_back({TokenKind::AnyOne});
        break;
      case L'#':
        tokens_.push_back({TokenKind::Digit});
        break;
      case L'[':
        if (const std::size_t end = lower.find(L']', i); end != lower.npos) {
          AddClass(std::wstring_view(lower).substr(i + 1, end - i - 1));
          i = end;
          break;
        }
        [[fallthrough]];
      default:
        tokens_.push_back({TokenKind::Character, lower[i]});
    }
  }
}

void WildcardPattern::AddClass(std::wstring_view members) {
  if (members.empty()) {
    return;
  }
  Token token{TokenKind::OneOf};
  if (members.size() > 1 && members.front() == L'!') {
    token.Kind = TokenKind::NoneOf;
    members.remove_prefix(1);
  }
  token.FirstRange = ranges_.size();
  while (!members.empty()) {
    const bool isRange = members.size() >= 3 && members[1] == L'-';
    ranges_.push_back({members[0], members[isRange ? 2 : 0]});
    members.remove_prefix(isRange ? 3 : 1);
  }
  token.RangeCount = ranges_.size() - token.FirstRange;
  tokens_.push_back(token);
}

bool WildcardPattern::MatchesOne(const Token& token, wchar_t c) const {
  switch (token.Kind) {
    case TokenKind::Character:
      return c == token.Character;
    case TokenKind::Digit:
      return c >= L'0' && c <= L'9';
    case TokenKind::OneOf:
    case TokenKind::NoneOf: {
      const auto first = ranges_.begin() + static_cast<std::ptrdiff_t>(token.FirstRange);
      const bool member = std::any_of(first, first + static_cast<std::ptrdiff_t>(token.RangeCount),
                                      [c](const Range& range) { return c >= range.First && c <= range.Last; });
      return member == (token.Kind == TokenKind::OneOf);
    }
    case TokenKind::AnyOne:
    case TokenKind::AnyRun:
      break;
  }
  return true;
}

bool WildcardPattern::Matches(std::wstring_view name) const {
  // Only the last "*" is ever reconsidered: what an earlier one swallowed can be left to it.
  constexpr std::size_t kNone = static_cast<std::size_t>(-1);
  std::size_t token = 0;
  std::size_t at = 0;
  std::size_t lastRun = kNone;
  std::size_t runEnd = 0;
  while (at < name.size()) {
    if (token < tokens_.size() && tokens_[token].Kind == TokenKind::AnyRun) {
      lastRun = token++;
      runEnd = at;
    } else if (token < tokens_.size() && MatchesOne(tokens_[token], name[at])) {
      ++token;
      ++at;
    } else if (lastRun != kNone) {
      token = lastRun + 1;
      at = ++runEnd;
    } else {
      return false;
    }
  }
  return std::all_of(tokens_.begin() + static_cast<std::ptrdiff_t>(token), tokens_.end(),
                     [](const Token& rest) { return rest.Kind == TokenKind::AnyRun; });
}

NamePatterns::NamePatterns(std::wstring_view filterName) {
  for (bool more = true; more;) {
    const std::size_t comma = filterName.find(L',');
    more = comma != filterName.npos;
    AddPiece(Trim(filterName.substr(0, comma)));
    filterName.remove_prefix(more ? comma + 1 : filterName.size());
  }
  const auto excludes = [](const Entry& entry) { return entry.Excludes; };
  const auto matchesAll = [](const Entry& entry) { return entry.Pattern.MatchesEveryDottedName(); };
  admitsAll_ = entries_.empty() || (std::none_of(entries_.begin(), entries_.end(), excludes) &&
                                    std::any_of(entries_.begin(), entries_.end(), matchesAll));
}

void NamePatterns::AddPiece(std::wstring piece) {
  if (piece.starts_with(L'-') && piece.ends_with(L'\\')) {
    leftOut_.emplace_back(std::wstring_view(piece).substr(1, piece.size() - 2));
    return;
  }
  if (piece.find(L'.') == piece.npos) {
    piece += L"*.*";
  }
  const bool excludes = piece.starts_with(L'-');
  const bool hasSign = excludes || piece.starts_with(L'+');
  entries_.push_back({excludes, WildcardPattern(std::wstring_view(piece).substr(hasSign ? 1 : 0))});
}

bool NamePatterns::LeaveOut(std::wstring_view directory) const {
  if (leftOut_.empty()) {
    return false;
  }
  const std::wstring lower = platform::ToLower(directory);
  return std::any_of(leftOut_.begin(), leftOut_.end(),
                     [&](const WildcardPattern& pattern) { return pattern.Matches(lower); });
}

bool NamePatterns::Admit(std::wstring_view name) const {
  if (admitsAll_) {
    return true;
  }
  constexpr std::size_t kLongestName = 260;
  name = name.substr(0, kLongestName);
  std::array<wchar_t, kLongestName + 1> lower;
  platform::LowerInto(name, lower.data());
  std::wstring_view candidate(lower.data(), name.size());
  if (candidate.find(L'.') == candidate.npos) {
    lower[name.size()] = L'.';
    candidate = {lower.data(), name.size() + 1};
  }
  bool matched = false;
  for (const Entry& entry : entries_) {
    if (entry.Excludes || !matched) {
      const bool matches = entry.Pattern.Matches(candidate);
      if (matches && entry.Excludes) {
        return false;
      }
      matched |= matches;
    }
  }
  return matched;
}

}  // namespace folivant
