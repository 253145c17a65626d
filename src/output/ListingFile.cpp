#include "output/ListingFile.h"

#include <exception>
#include <utility>

namespace folivant {
namespace {

template <class Step>
void IgnoreFailure(Step step) noexcept {
  try {
    step();
  } catch (const std::exception&) {
    // The failure that ended the run is already on its way to the user.
  }
}

}  // namespace

void ListingFile::Close() {
  Write(std::exchange(line_, {}));
  text_ = nullptr;
  file_.Close();
}

void ListingFile::Abandon() noexcept {
  if (file_.IsOpen()) {
    IgnoreFailure([this] { Write(std::exchange(line_, {})); });
    IgnoreFailure([this] { file_.Close(); });
  }
  text_ = nullptr;
}

}  // namespace folivant
