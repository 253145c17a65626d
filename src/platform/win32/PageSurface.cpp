// A page as a device context draws it, in twips instead of the printer's pixels.
#include "platform/PageSurface.h"

#include <cmath>
#include <utility>
#include <vector>

#include "platform/win32/PrinterDevice.h"
#include "platform/win32/SystemError.h"

namespace folivant::platform {
namespace {

constexpr double kPointsPerInch = 72;

/// The system's number for a spooler call that answered `result`, when it left none of its own.
DWORD SpoolerError(int result) {
  switch (result) {
    case SP_USERABORT:
      return ERROR_PRINT_CANCELLED;
    case SP_OUTOFDISK:
      return ERROR_NO_SPOOL_SPACE;
    case SP_OUTOFMEMORY:
      return ERROR_NOT_ENOUGH_MEMORY;
    default:
      return ERROR_GEN_FAILURE;
  }
}

class PrinterSurface final : public PageSurface {
 public:
  PrinterSurface(std::wstring printer, const PrintJob& job)
      : printer_(std::move(printer)),
        dc_(OpenPrinterContext(printer_, job)),
        area_(AreaOf(Dc())),
        dotsPerTwipX_(GetDeviceCaps(Dc(), LOGPIXELSX) / kTwipsPerInch),
        dotsPerTwipY_(GetDeviceCaps(Dc(), LOGPIXELSY) / kTwipsPerInch) {}
  ~PrinterSurface() override { AbortDocument(); }
  PrinterSurface(const PrinterSurface&) = delete;
  PrinterSurface& operator=(const PrinterSurface&) = delete;

  PageArea Area() const override { return area_; }

  void SelectFont(const PageFont& font) override {
    selected_ = FontOf(font);
    selection_.Select(selected_);
  }

  double TextWidth(std::wstring_view text) override {
    SIZE size{};
    if (!text.empty()) {
      Check([&] { return GetTextExtentPoint32W(Dc(), text.data(), static_cast<int>(text.size()), &size); });
    }
    return size.cx / dotsPerTwipX_;
  }

  double TextHeight() override {
    TEXTMETRICW metrics{};
    Check([&] { return GetTextMetricsW(Dc(), &metrics); });
    return metrics.tmHeight / dotsPerTwipY_;
  }

  void BeginDocument(const std::wstring& title) override {
    DOCINFOW document{};
    document.cbSize = sizeof document;
    document.lpszDocName = title.c_str();
    Check([&] { return StartDocW(Dc(), &document); });
    open_ = true;
    BeginPage();
  }

  void Draw(double x, double y, std::wstring_view text) override {
    if (!text.empty()) {
      Check([&] {
        return TextOutW(Dc(), Dots(x, dotsPerTwipX_), Dots(y, dotsPerTwipY_), text.data(),
                        static_cast<int>(text.size()));
      });
    }
  }

  void NewPage() override {
    Check([this] { return EndPage(Dc()); });
    BeginPage();
  }

  void EndDocument() override {
    Check([this] { return EndPage(Dc()); });
    Check([this] { return EndDoc(Dc()); });
    open_ = false;
  }

  void AbortDocument() noexcept override {
    if (std::exchange(open_, false)) {
      AbortDoc(Dc());
    }
  }

 private:
  HDC Dc() const { return dc_.Get(); }

  static int Dots(double twips, double dotsPerTwip) { return static_cast<int>(std::lround(twips * dotsPerTwip)); }

  /// Every call answers more than 0 when it went well.
  template <class Call>
  void Check(Call call) const {
    SetLastError(ERROR_SUCCESS);
    const int result = call();
    const DWORD code = GetLastError();
    if (result <= 0) {
      throw SystemError(FailedAction::Print, printer_, code == ERROR_SUCCESS ? SpoolerError(result) : code);
    }
  }

  /// A new page forgets what was set for the last one on some systems.
  void BeginPage() {
    Check([this] { return StartPage(Dc()); });
    SetBkMode(Dc(), TRANSPARENT);
    SetTextAlign(Dc(), TA_LEFT | TA_TOP | TA_NOUPDATECP);
    if (selected_ != nullptr) {
      selection_.Select(selected_);
    }
  }

  HFONT FontOf(const PageFont& font) {
    for (const auto& [known, handle] : fonts_) {
      if (known == font) {
        return handle.Get();
      }
    }
    LOGFONTW wanted{};
    wanted.lfHeight = -static_cast<LONG>(std::lround(font.Points * dotsPerTwipY_ * kTwipsPerInch / kPointsPerInch));
    wanted.lfWeight = font.Bold ? FW_BOLD : FW_NORMAL;
    wanted.lfCharSet = DEFAULT_CHARSET;
    font.Name.copy(wanted.lfFaceName, LF_FACESIZE - 1);
    OwnedFont made(CreateFontIndirectW(&wanted));
    const DWORD code = GetLastError();
    if (!made.IsOpen()) {
      throw SystemError(FailedAction::Print, printer_, code);
    }
    fonts_.emplace_back(font, std::move(made));
    return fonts_.back().second.Get();
  }

  std::wstring printer_;
  std::vector<std::pair<PageFont, OwnedFont>> fonts_;  ///< outlives the selection of one
  OwnedDeviceContext dc_;
  Selection selection_{dc_.Get()};
  PageArea area_;
  double dotsPerTwipX_;
  double dotsPerTwipY_;
  HFONT selected_ = nullptr;
  bool open_ = false;
};

}  // namespace

std::unique_ptr<PageSurface> OpenPageSurface(const PrintJob& job) {
  return std::make_unique<PrinterSurface>(PrinterOf(job), job);
}

}  // namespace folivant::platform
