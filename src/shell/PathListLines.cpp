// Lines are cut from the bytes and decoded one by one: no encoding has the byte or unit of a line end inside a
// character, so no character is ever torn apart where two pieces of the file meet.
#include "shell/PathListLines.h"

#include <algorithm>

namespace folivant {
namespace {

constexpr std::size_t kPiece = std::size_t{64} * 1024;          ///< bytes
constexpr std::size_t kLongestLine = std::size_t{1024} * 1024;  ///< bytes; a path has 32,767 characters at most
constexpr wchar_t kBlanks[] = L" \t";

bool IsLineEnd(unsigned unit) {
  return unit == '\n' || unit == '\r' || unit == '\0';
}

std::wstring_view WithoutQuotes(std::wstring_view line) {
  const bool quoted = line.size() >= 2 && line.front() == L'"' && line.back() == L'"';
  return quoted ? line.substr(1, line.size() - 2) : line;
}

/// Empty for a blank line, also one of quotes with nothing between them.
std::wstring_view PathOn(std::wstring_view line) {
  const std::size_t first = std::min(line.find_first_not_of(kBlanks), line.size());
  line = WithoutQuotes(line.substr(first, line.find_last_not_of(kBlanks) + 1 - first));
  return line.find_first_not_of(kBlanks) == line.npos ? std::wstring_view() : line;
}

}  // namespace

PathListLines::PathListLines(const std::wstring& path, Progress& progress)
    : file_(path),
      progress_(progress),
      piece_(kPiece, '\0'),
      encoding_(FindEncoding()),
      unit_(encoding_ == platform::TextEncoding::Utf16 || encoding_ == platform::TextEncoding::Utf16BigEndian ? 2 : 1) {
  SkipMark();
}

std::optional<std::wstring> PathListLines::Next() {
  while (const std::optional<std::string_view> line = TakeLine()) {
    const std::wstring text = platform::Decode(line->substr(0, kLongestLine), encoding_);
    if (const std::wstring_view path = PathOn(text); !path.empty()) {
      return std::wstring(path);
    }
  }
  return std::nullopt;
}

platform::TextEncoding PathListLines::FindEncoding() {
  platform::EncodingProbe probe;
  while (!probe.IsSure() && !progress_.Cancelled()) {
    const std::size_t read = file_.Read(piece_);
    if (read == 0) {
      break;
    }
    probe.Add(std::string_view(piece_).substr(0, read));
    LetEventsThroughAfter(read);
  }
  file_.Rewind();
  return probe.Found();
}

void PathListLines::SkipMark() {
  const std::size_t mark = platform::MarkOf(encoding_).size();
  while (bytes_.size() < mark && ReadPiece()) {
  }
  begin_ = std::min(mark, bytes_.size());
  searched_ = begin_;
}

/// False at the end of the file, and when the run is cancelled.
bool PathListLines::ReadPiece() {
  const std::size_t read = progress_.Cancelled() ? 0 : file_.Read(piece_);
  bytes_.erase(0, begin_);
  searched_ -= begin_;
  begin_ = 0;
  if (searched_ > kLongestLine) {  // of a line without end no more is kept than shows that it is too long
    searched_ = kLongestLine + unit_;
    bytes_.erase(searched_);
  }
  bytes_.append(piece_, 0, read);
  LetEventsThroughAfter(read);
  return read > 0;
}

/// Short lists have their events row by row.
void PathListLines::LetEventsThroughAfter(std::size_t read) {
  if (read == piece_.size()) {
    progress_.LetEventsThrough();
  }
}

/// Where the line that begins at begin_ ends; npos when its end has not been read yet.
std::size_t PathListLines::FindLineEnd() {
  for (; searched_ + unit_ <= bytes_.size(); searched_ += unit_) {
    unsigned unit = 0;
    for (std::size_t i = 0; i < unit_; ++i) {
      const std::size_t at = encoding_ == platform::TextEncoding::Utf16BigEndian ? i : unit_ - 1 - i;
      unit = unit << 8U | static_cast<unsigned char>(bytes_[searched_ + at]);
    }
    if (IsLineEnd(unit)) {
      return searched_;
    }
  }
  return std::string::npos;
}

/// Valid until the next call.
std::optional<std::string_view> PathListLines::TakeLine() {
  std::size_t end = FindLineEnd();
  while (end == std::string::npos && ReadPiece()) {
    end = FindLineEnd();
  }
  if (end == std::string::npos && (begin_ == bytes_.size() || progress_.Cancelled())) {
    return std::nullopt;
  }
  const std::string_view line = std::string_view(bytes_).substr(begin_, end == std::string::npos ? end : end - begin_);
  begin_ = std::min(begin_ + line.size() + unit_, bytes_.size());
  searched_ = begin_;
  return line;
}

}  // namespace folivant
