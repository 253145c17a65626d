// What the writers of files have in common: the run that they write, the texts of its entries, and the open file.
#pragma once

#include <optional>
#include <string>

#include "output/EntryTexts.h"
#include "output/ListingFile.h"
#include "scan/ListingRun.h"
#include "scan/ListingWriter.h"

namespace folivant {

class FileWriter : public ListingWriter {
 public:
  void BeginListing(ListingRun& run) final {
    run_ = &run;
    texts_.emplace(run);
    if (run.OutputText != nullptr) {
      file_.OpenText(*run.OutputText);
    } else {
      file_.Open(run.OutputFile);
    }
    Begin();
  }
  void EndListing() final {
    End();
    file_.Close();
  }
  void AbortListing() noexcept final { file_.Abandon(); }

 protected:
  /// The head and the foot of the document.
  virtual void Begin() = 0;
  virtual void End() = 0;

  // From the beginning of a listing to its end.
  ListingRun& Run() const { return *run_; }
  EntryTexts& Texts() { return *texts_; }
  ListingFile& File() { return file_; }

 private:
  ListingRun* run_ = nullptr;
  std::optional<EntryTexts> texts_;
  ListingFile file_;
};

}  // namespace folivant
