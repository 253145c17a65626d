// The name filter: a list of wildcard patterns with inclusions and exclusions.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace folivant {

/// A case-insensitive wildcard pattern: "*" any run of characters, "?" one character, "#" one digit, "[a-z0]" one of a
/// class, "[!a-z]" one not of it ("[]" stands for no character, "[!]" for "!", an unclosed "[" for itself). Classes
/// compare lower-case code points. Matching never takes longer than pattern length times name length.
class WildcardPattern {
 public:
  explicit WildcardPattern(std::wstring_view pattern);
  /// `name` must be in lower case.
  bool Matches(std::wstring_view name) const;
  /// Whether every name with a dot in it matches: "*" and "*.*".
  bool MatchesEveryDottedName() const { return everyDotted_; }

 private:
  enum class TokenKind { Character, AnyOne, AnyRun, Digit, OneOf, NoneOf };
  struct Range {
    wchar_t First, Last;
  };
  struct Token {
    TokenKind Kind;
    wchar_t Character = 0;
    std::size_t FirstRange = 0, RangeCount = 0;
  };

  void AddClass(std::wstring_view members);
  bool MatchesOne(const Token& token, wchar_t c) const;

  std::vector<Token> tokens_;
  std::vector<Range> ranges_;
  bool everyDotted_ = false;
};

/// The prepared pattern list of one run.
class NamePatterns {
 public:
  NamePatterns() = default;
  /// Splits at every ",". A piece that starts with "-" and ends in "\" names directories that are left out with all
  /// that they hold; it says nothing of other names, and a list of nothing else admits all of them. Every other piece
  /// is trimmed and gets "*.*" appended when it holds no dot (so an empty piece matches everything). One that starts
  /// with
  /// "-" excludes, one with "+" or anything else includes.
  explicit NamePatterns(std::wstring_view filterName);

  /// Whether the name passes: some inclusion matches and no exclusion does. A list of exclusions alone admits nothing,
  /// on purpose: exclusions only subtract from what the inclusions admit. A name without a dot is compared with one
  /// appended.
  bool Admit(std::wstring_view name) const;
  /// Whether a directory of that name is left out. Its pattern is compared as it is, without a dot appended anywhere.
  bool LeaveOut(std::wstring_view directory) const;

 private:
  struct Entry {
    bool Excludes;
    WildcardPattern Pattern;
  };
  void AddPiece(std::wstring piece);

  std::vector<Entry> entries_;
  std::vector<WildcardPattern> leftOut_;
  bool admitsAll_ = false;  ///< nothing excludes, and some pattern matches every name
};

}  // namespace folivant
