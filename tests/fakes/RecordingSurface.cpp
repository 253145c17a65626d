#include "fakes/RecordingSurface.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "platform/RuntimeError.h"

namespace folivant::fakes {
namespace {

constexpr double kSameTwip = 0.5;

bool Same(double a, double b) {
  return std::fabs(a - b) < kSameTwip;
}

class RecordingSurface final : public platform::PageSurface {
 public:
  RecordingSurface(RecordingPrinter& printer, platform::PrintJob job) : printer_(printer), job_(std::move(job)) {
    ++printer_.Open;
  }
  RecordingSurface(const RecordingSurface&) = delete;
  RecordingSurface& operator=(const RecordingSurface&) = delete;
  ~RecordingSurface() override {
    AbortDocument();
    --printer_.Open;
  }

  platform::PageArea Area() const override {
    const platform::PageArea area = printer_.Area;
    return job_.Portrait ? area : platform::PageArea{area.Height,     area.Width,     area.BottomOffset,
                                                     area.LeftOffset, area.TopOffset, area.RightOffset};
  }
  void SelectFont(const platform::PageFont& font) override {
    FailIf(PrinterFailure::SelectFont);
    font_ = font;
  }
  double TextWidth(std::wstring_view text) override {
    ++printer_.Measured;
    if (printer_.Resolution > 0) {
      return Twips(static_cast<double>(text.size()) * printer_.DotsOfCharacter(font_.Points));
    }
    const auto blanks = std::count(text.begin(), text.end(), L' ');
    const double others = static_cast<double>(text.size()) - static_cast<double>(blanks);
    const double bold = font_.Bold ? 1 : 0;
    return font_.Points * (others * (12 + bold) + static_cast<double>(blanks) * (6 + bold));
  }
  double TextHeight() override {
    return printer_.Resolution > 0 ? Twips(printer_.DotsOfLine(font_.Points)) : font_.Points * 22;
  }
  void BeginDocument(const std::wstring& title) override {
    FailIf(PrinterFailure::BeginDocument);
    printer_.Jobs.push_back(job_);
    printer_.Titles.push_back(title);
    printer_.BeginDocument();
    open_ = true;
  }
  void Draw(double x, double y, std::wstring_view text) override {
    FailIf(PrinterFailure::Draw);
    printer_.Keep(x, y, text, font_);
  }
  void NewPage() override {
    FailIf(PrinterFailure::NewPage);
    ++printer_.Pages;
  }
  void EndDocument() override {
    FailIf(PrinterFailure::EndDocument);
    open_ = false;
    ++printer_.Ended;
  }
  void AbortDocument() noexcept override {
    printer_.Aborted += open_ ? 1 : 0;
    open_ = false;
  }

 private:
  /// As a device's texts become twips: by another division than its sheet.
  double Twips(double dots) const { return dots / (printer_.Resolution / platform::kTwipsPerInch); }

  void FailIf(PrinterFailure failure) const {
    if (printer_.Failure == failure && printer_.FailingPage == (open_ ? printer_.Pages : 0)) {
      throw RuntimeError(FailedAction::Print, job_.PrinterName, L"The printer is out of order.", 4242);
    }
  }

  RecordingPrinter& printer_;
  platform::PrintJob job_;
  platform::PageFont font_;
  bool open_ = false;
};

}  // namespace

RecordingPrinter::RecordingPrinter() {
  Reset();
}

void RecordingPrinter::Reset() {
  Area = {11906, 16838, 0, 0, 0, 0};
  Resolution = 0;
  Failure = PrinterFailure::None;
  FailingPage = 1;
  Jobs.clear();
  Titles.clear();
  BeginDocument();
  Pages = Ended = Aborted = 0;
  Measured = 0;
}

void RecordingPrinter::SetSheet(int dotsPerInch, double width, double height) {
  Resolution = dotsPerInch;
  Area = {width * platform::kTwipsPerInch / dotsPerInch, height * platform::kTwipsPerInch / dotsPerInch, 0, 0, 0, 0};
}

double RecordingPrinter::DotsOfCharacter(double points) const {
  return std::round(points * Resolution / 120);
}

double RecordingPrinter::DotsOfLine(double points) const {
  return std::round(points * Resolution / 64);
}

void RecordingPrinter::BeginDocument() {
  Drawn.clear();
  texts_.Clear();
  fonts_.clear();
  Pages = 1;
}

void RecordingPrinter::Keep(double x, double y, std::wstring_view text, const platform::PageFont& font) {
  if (fonts_.empty() || fonts_.back() != font) {
    fonts_.push_back(font);
  }
  Drawn.push_back({Pages, x, y, texts_.Add(text), &fonts_.back()});
}

std::wstring RecordingPrinter::At(int page, double x, double y) const {
  for (const DrawnText& drawn : Drawn) {
    if (drawn.Page == page && Same(drawn.X, x) && Same(drawn.Y, y)) {
      return std::wstring(drawn.Text);
    }
  }
  return {};
}

std::wstring RecordingPrinter::Line(int page, double y) const {
  std::vector<DrawnText> line;
  std::copy_if(Drawn.begin(), Drawn.end(), std::back_inserter(line),
               [page, y](const DrawnText& drawn) { return drawn.Page == page && Same(drawn.Y, y); });
  std::stable_sort(line.begin(), line.end(), [](const DrawnText& a, const DrawnText& b) { return a.X < b.X; });
  std::wstring joined;
  for (const DrawnText& drawn : line) {
    (joined += joined.empty() ? L"" : L"|") += drawn.Text;
  }
  return joined;
}

const DrawnText& RecordingPrinter::Find(int page, std::wstring_view text) const {
  const auto wanted = [page, text](const DrawnText& drawn) { return drawn.Page == page && drawn.Text == text; };
  const auto found = std::find_if(Drawn.begin(), Drawn.end(), wanted);
  if (found == Drawn.end() || std::count_if(Drawn.begin(), Drawn.end(), wanted) != 1) {
    throw std::logic_error("the page does not hold that text exactly once");
  }
  return *found;
}

RecordingPrinter& Printer() {
  static RecordingPrinter printer;
  return printer;
}

}  // namespace folivant::fakes

namespace folivant::platform {

std::unique_ptr<PageSurface> OpenPageSurface(const PrintJob& job) {
  fakes::RecordingPrinter& printer = fakes::Printer();
  if (printer.Failure == fakes::PrinterFailure::Open) {
    throw RuntimeError(FailedAction::Print, job.PrinterName, L"The printer name is invalid.", 1801);
  }
  return std::make_unique<fakes::RecordingSurface>(printer, job);
}

}  // namespace folivant::platform
