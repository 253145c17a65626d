// What the main window adds to a run: the same listing from the window and with "/g", in alternating pairs, and the
// time from pressing Cancel to its question on screen. Drives the real program; needs a display.
//   window_bench FILTERFILE TREE EMPTY PAIRS
#include <algorithm>
#include <cstdio>
#include <random>

#include "desktop/MainWindow.h"

namespace folivant::desktop {
namespace {

double Milliseconds() {
  LARGE_INTEGER now;
  LARGE_INTEGER frequency;
  QueryPerformanceCounter(&now);
  QueryPerformanceFrequency(&frequency);
  return 1e3 * static_cast<double>(now.QuadPart) / static_cast<double>(frequency.QuadPart);
}

double Median(std::vector<double> numbers) {
  std::sort(numbers.begin(), numbers.end());
  return numbers[numbers.size() / 2];
}

/// Waits more closely than tests do.
template <typename Condition>
void Await(Condition condition) {
  const double end = Milliseconds() + kPatience;
  while (!condition() && Milliseconds() < end) {
    Sleep(1);
  }
}

class Bench final : public MainWindowTest {
 public:
  explicit Bench(const std::wstring& filter) : filter_(L"/f " + filter + L" /d ") {}

  /// A whole process with "/g".
  double CommandLineRun(const std::wstring& tree) const {
    const double begin = Milliseconds();
    const Program program(filter_ + tree + L" /t t /o " + (scratch / L"list.txt") + L" /g");
    WaitForSingleObject(program.Process(), INFINITE);
    return Milliseconds() - begin;
  }

  /// From the confirmed save dialog until the main window takes orders again.
  double WindowRun(const std::wstring& tree) const {
    const Program program(filter_ + tree);
    const Window main = Main(program);
    const double begin = Start(program, main);
    program.WaitForWindow(Message(kProgressTitle), main);
    Await([&] { return main.IsEnabled(); });
    const double time = Milliseconds() - begin;
    Close(program, main);
    return time;
  }

  /// From Cancel to its question, each answered No but the last, at odd moments of one run.
  std::vector<double> Cancels(const std::wstring& tree, int count) const {
    std::mt19937 random(20010203);
    const Program program(filter_ + tree);
    const Window main = Main(program);
    Start(program, main);
    const Window progress = program.WaitForWindow(Message(kProgressTitle), main);
    std::vector<double> times;
    for (int left = count; left > 0; --left) {
      Sleep(50 + random() % 100);
      const double begin = Milliseconds();
      progress.Press(cmdCancel);
      Await([&] { return program.Windows().size() > 2; });
      times.push_back(Milliseconds() - begin);
      program.WaitForBox(progress).Answer(left > 1 ? IDNO : IDYES);
    }
    progress.WaitUntilGone();
    Await([&] { return main.IsEnabled(); });
    Close(program, main);
    return times;
  }

 private:
  static constexpr int kProgressTitle = 203;

  void TestBody() override {}

  /// Begins a run to a new file; returns the moment of the confirmation.
  double Start(const Program& program, Window main) const {
    const std::wstring file = scratch / L"window.txt";
    DeleteFileW(file.c_str());
    main.Press(cmdOK);
    const Window dialog = program.WaitForBox(main);
    Confirm(dialog, file, 0);
    const double begin = Milliseconds();
    Await([&] { return !dialog.IsShown(); });
    return begin;
  }

  std::wstring filter_;
};

void Measure(const std::wstring& filter, const std::wstring& tree, const std::wstring& empty, int pairs) {
  const Bench bench(filter);
  bench.CommandLineRun(tree);
  std::vector<double> ratios;
  for (int pair = 0; pair < pairs; ++pair) {
    double window = pair % 2 == 0 ? bench.WindowRun(tree) : 0;
    const double commandLine = bench.CommandLineRun(tree) - bench.CommandLineRun(empty);
    window = pair % 2 == 0 ? window : bench.WindowRun(tree);
    ratios.push_back(window / commandLine);
  }
  const std::vector<double> cancels = bench.Cancels(tree, 4 * pairs);
  std::printf("window %.2f times\ncancel median %.0f longest %.0f ms of %zu\n", Median(ratios), Median(cancels),
              *std::max_element(cancels.begin(), cancels.end()), cancels.size());
}

}  // namespace
}  // namespace folivant::desktop

int wmain(int count, wchar_t** arguments) {
  if (count != 5) {
    return 1;
  }
  folivant::desktop::Measure(arguments[1], arguments[2], arguments[3], _wtoi(arguments[4]));
  return 0;
}
