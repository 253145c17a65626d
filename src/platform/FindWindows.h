// Other programs' windows: which are open, what is inside them, and the memory and messages through which a list view
// that belongs to another program is read. What is asked of such a list view, and in which order, is mdlFind's work.
// The host build has no windows: nothing is ever found there.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace folivant::platform {

/// A window of any program. Window handles fit in 32 bits, on 64-bit systems too; 0 is no window.
using WindowHandle = std::int32_t;

/// Every top-level window, the topmost first.
std::vector<WindowHandle> TopLevelWindows();
/// The direct children of `parent`, the topmost first.
std::vector<WindowHandle> ChildWindows(WindowHandle parent);
/// Empty when the window is gone.
std::wstring WindowClass(WindowHandle window);
std::uint32_t WindowStyle(WindowHandle window);
/// In the ANSI code page, at most 254 characters: what the code page lacks has become "?".
std::wstring WindowTitle(WindowHandle window);

/// How a program lays out its records: by the size of its pointers.
enum class RecordLayout { Bits32, Bits64 };

/// One window of another program, with a block of memory inside that program which its messages can point to.
/// Write, Read and Send each cost one call across the process border. All of them throw RuntimeError (ReadWindow, with
/// the title given to the constructor) when the other program has ended, does not answer or may not be touched.
class ForeignWindow {
 public:
  ForeignWindow(WindowHandle window, std::wstring title);
  ~ForeignWindow();  ///< releases the block; quiet when the program has ended
  ForeignWindow(const ForeignWindow&) = delete;
  ForeignWindow& operator=(const ForeignWindow&) = delete;

  RecordLayout Layout() const;
  /// Reserves the block, once: `size` bytes, all zero. Returns its address as the other program sees it.
  std::uint64_t Reserve(std::size_t size);
  void Write(std::size_t offset, std::span<const std::byte> bytes);
  void Read(std::size_t offset, std::span<std::byte> bytes);
  /// Sends `message` and waits for the answer; a program that does not answer for ten seconds counts as hung.
  std::int64_t Send(std::uint32_t message, std::uint64_t wParam, std::uint64_t lParam);

 private:
  struct State;
  std::unique_ptr<State> state_;
};

/// Bytes that other programs can see under a name, kept in a file. No call of it fails: where the system refuses, the
/// bytes are private memory.
class SharedMapping {
 public:
  /// `size` bytes named `name`, backed by `file`, which is made when missing and never deleted.
  SharedMapping(const std::wstring& name, const std::wstring& file, std::size_t size);
  /// Flushes and closes the mapping and the file. The view stays until the process ends: readers may be in it.
  ~SharedMapping();
  SharedMapping(const SharedMapping&) = delete;
  SharedMapping& operator=(const SharedMapping&) = delete;

  std::span<std::byte> Bytes() const;
  /// The view's address; below four gigabytes where the system has room there, so that a 32-bit field can hold it.
  std::uint64_t Address() const;

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace folivant::platform
