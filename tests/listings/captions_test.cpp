// The captions of the directory view on paper in every language of the program, in a font whose characters are all as
// wide as each other: each stands whole in its column.
#include <filesystem>
#include <sstream>

#include "listings/TreeFile.h"
#include "output/Columns.h"
#include "output/PageFixture.h"

namespace folivant {
namespace {

std::vector<std::string> Languages() {
  std::vector<std::string> names;
  for (const auto& file : std::filesystem::directory_iterator(std::string(FOLIVANT_TESTS_FOLDER) + "/../lang")) {
    names.push_back(file.path().stem().string());
  }
  return names;
}

class LanguageCaptions : public PageWriter, public ::testing::WithParamInterface<std::string> {
 protected:
  LanguageCaptions() {
    std::istringstream file(listings::ReadTestFile("../../lang/" + GetParam() + ".ini"));
    for (std::string line; std::getline(file, line);) {
      const std::size_t equals = line.find('=');
      if (equals != line.npos && line.find_first_not_of("0123456789") == equals) {
        Texts.Set(std::stoul(line), listings::FromUtf8(line.substr(equals + 1)));
      }
    }
  }
};

TEST_P(LanguageCaptions, FitTheColumnsOfADirectoryViewOnPaper) {
  for (const int points : {8, 10, 12}) {
    General.FontSize = static_cast<std::int16_t>(points);
    for (unsigned shown = 0; shown < 16; ++shown) {
      Format.Directories = {(shown & 1) != 0, (shown & 2) != 0, (shown & 4) != 0, (shown & 8) != 0};
      printer.SetSheet(300, 2479, 3508);
      Begin(ListingStyle::DirectoryView);
      std::wstring expected = Texts[TextId::DirectoryCaption];
      for (const DirectoryColumn& column : kDirectoryColumns) {
        if (Format.Directories.*column.Shown) {
          expected += L"|" + Texts[column.Caption];
        }
      }
      EXPECT_EQ(printer.Line(1, printer.Find(1, Texts[TextId::DirectoryCaption]).Y), expected) << points << " points";
      writer->AbortListing();
    }
  }
}

INSTANTIATE_TEST_SUITE_P(All, LanguageCaptions, ::testing::ValuesIn(Languages()),
                         [](const auto& instance) { return instance.param; });

}  // namespace
}  // namespace folivant
