// Whole files, well-known folders and volumes. Paths are Windows paths, as in FindFiles.h.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace folivant::platform {

inline constexpr std::size_t kMegabyte = std::size_t{1024} * 1024;
/// What is read whole is a text of some kilobytes; whoever names something else by mistake is told so at once.
inline constexpr std::size_t kLongestWholeFile = 16 * kMegabyte;
/// The bytes of a file. Throws RuntimeError: ReadFile when it cannot be opened or read, ReadLargeFile when it is longer
/// than kLongestWholeFile.
std::string ReadWholeFile(const std::wstring& path);
/// Puts `bytes` in place of the file's content, by way of a temporary file beside it, so that a failure at any moment
/// leaves either the old or the new content. The file keeps its attributes and its access list, as far as the file
/// system and the user's rights allow. Throws RuntimeError (WriteFile), also for a read-only file.
void ReplaceFile(const std::wstring& path, std::string_view bytes);
/// Makes an empty file or empties an existing one; false when that fails.
bool TruncateFile(const std::wstring& path);
/// False when the file is not there or cannot be deleted.
bool RemoveFile(const std::wstring& path);
/// Anything of that name, whatever its attributes.
bool PathExists(std::wstring_view path);
bool IsDirectory(std::wstring_view path);

/// The process's current directory, without a trailing backslash (a drive root keeps its own).
std::wstring CurrentDirectory();
/// `path` made absolute against the current directory; an absolute and an empty path come back unchanged.
std::wstring AbsolutePath(const std::wstring& path);
/// The directory for temporary files, as the system gives it (with or without a trailing backslash).
std::wstring TemporaryDirectory();
/// The folder that holds the program, without a trailing backslash; language files and help lie in it.
std::wstring ProgramFolder();
/// The current user's Send To folder; nothing when the shell does not know one (always so in the host build
/// unless the environment variable FOLIVANT_SENDTO names a folder).
std::optional<std::wstring> SendToFolder();

/// Names of a folder's entries that end in `ending` (".ini"), any attributes, letter case ignored, in the order of the
/// file system.
std::vector<std::wstring> FindNames(const std::wstring& folder, std::wstring_view ending);

/// The label of the volume whose root is `root` ("C:\"); empty when it has none or cannot be asked.
std::wstring VolumeLabel(const std::wstring& root);

struct DiskSpace {
  std::uint64_t TotalFree = 0;  ///< bytes free on the volume, whoever may use them
  std::uint64_t Total = 0;      ///< bytes
};
/// Nothing when the system cannot tell.
std::optional<DiskSpace> FreeSpace(const std::wstring& directory);

}  // namespace folivant::platform
